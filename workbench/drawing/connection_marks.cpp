#include "workbench/drawing/connection_marks.h"

#include "host/host_base.h"
#include "host/host_fittings.h"
#include "platform/color.h"

#include <array>

namespace workbench {

std::vector<CConnectionMark> ConnectionMarksOf(TGA_LIST& record)
{
    std::array<LM_APUNKT, kMaxAnschlussPunkte> punkte;
    const int count =
        lmGet_K_APUNKT_BLOCK_Wc(record.Attribute, punkte.data(), &record.Trafo, TgaGewerk(0), L"");
    std::vector<CConnectionMark> marks;
    CStandingMarks standing;
    for (std::size_t i = 0; i < static_cast<std::size_t>(count) / 2; ++i) {
        const LM_APUNKT& punkt = punkte[i];
        const auto color = static_cast<COLORREF>(lmGetGewerkColor(punkt.Gewerk));
        CConnectionMark mark{{punkt.Punkt[0], punkt.Punkt[1]},
                             {punkt.Richtung[0], punkt.Richtung[1]},
                             punkt.Richtung[2],
                             punkt.Wert,
                             QColor(GetRValue(color), GetGValue(color), GetBValue(color)),
                             punkt.Gewerk == kGewerkRuecklauf};
        mark.punkt = standing.PlaceBeside(mark);
        standing.Add(mark);
        marks.push_back(mark);
    }
    return marks;
}

} // namespace workbench
