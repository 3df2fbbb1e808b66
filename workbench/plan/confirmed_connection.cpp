#include "workbench/plan/confirmed_connection.h"

#include "workbench/plan/connection_name.h"

#include <cmath>

namespace workbench {

namespace {

/// Metres; the dialog shows a distance with three decimals.
constexpr double kSameDistance = 0.0006;

bool IsOtherWallDistance(const CConfirmedConnection& chosen)
{
    const double distance = chosen.anschluss.WandAbstand;
    return distance > 0.0 && !IsSameDistance(distance, chosen.eingang.WandAbstand);
}

void TakeType(CPlacedRadiator& radiator, const CConfirmedConnection& chosen)
{
    const ConnValues before = radiator.anschluss;
    radiator.anschluss = chosen.anschluss;
    if (!HasSamePoints(chosen.anschluss, chosen.eingang)) {
        // The dialog leaves the name as it was when points are exchanged or moved.
        radiator.anschluss.Name = NameOfPoints(chosen.anschluss);
    }
    radiator.anschluss.GrafikAN = before.GrafikAN;
    radiator.anschluss.GrafikRI = before.GrafikRI;
    radiator.anschluss.WandAbstand = before.WandAbstand;
    if (IsOtherWallDistance(chosen)) {
        radiator.anschluss.WandAbstand = chosen.anschluss.WandAbstand;
        radiator.abstandWand = chosen.anschluss.WandAbstand;
    }
}

/// The valve that is taken away takes its graphic with it.
void TakeValve(std::optional<CValveKey>& valve, CString& graphic,
               const std::optional<CValveKey>& chosen)
{
    if (valve && !chosen) {
        graphic.clear();
    }
    valve = chosen;
}

void TakeValves(CPlacedRadiator& radiator, const CConfirmedConnection& chosen)
{
    ConnValues& anschluss = radiator.anschluss;
    TakeValve(radiator.ventile.vorlauf, anschluss.GrafikAN, chosen.ventile.vorlauf);
    TakeValve(radiator.ventile.ruecklauf, anschluss.GrafikRI, chosen.ventile.ruecklauf);
    const CString& vorlauf = chosen.anschluss.GrafikAN;
    const CString& ruecklauf = chosen.anschluss.GrafikRI;
    // A choice in one list gives what both show.
    if (!vorlauf.empty() || !ruecklauf.empty()) {
        anschluss.GrafikAN = GraphicOfEntry(vorlauf);
        anschluss.GrafikRI = GraphicOfEntry(ruecklauf);
    }
}

} // namespace

bool IsSameDistance(double a, double b)
{
    return std::fabs(a - b) <= kSameDistance;
}

CString GraphicEntry(const CString& graphic)
{
    return graphic.empty() ? CString(kNoGraphic) : graphic;
}

CString GraphicOfEntry(const CString& entry)
{
    return entry == kNoGraphic ? CString() : entry;
}

void TakeConnection(CPlacedRadiator& radiator, const CConfirmedConnection& chosen)
{
    if (chosen.bTyp) {
        TakeType(radiator, chosen);
    }
    if (chosen.bVentile) {
        TakeValves(radiator, chosen);
    }
}

void TakeStart(CPlacedRadiator& radiator, const CConfirmedStart& confirmed)
{
    if (confirmed.abstaende) {
        radiator.abstandWand = confirmed.abstaende->wand;
        radiator.abstandBoden = confirmed.abstaende->boden;
    }
    if (confirmed.anschluss) {
        TakeConnection(radiator, *confirmed.anschluss);
    }
}

} // namespace workbench
