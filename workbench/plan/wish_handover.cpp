#include "workbench/plan/wish_handover.h"

#include "frame/entry_points.h"
#include "workbench/plan/coverage.h"
#include "workbench/plan/module_call.h"

#include <algorithm>
#include <limits>

namespace workbench {

namespace {

/// The module takes rows up to this much higher than the height asked for, in mm. A sill gives no
/// such grace.
constexpr double kHeightGrace = 10.0;

/// The sizes of the product within a range; the whole range if there are none.
void Narrow(const OCArray<double>& sizes, double& min, double& max)
{
    double lowest = max;
    double highest = min;
    for (const double size : sizes) {
        if (size >= min && size <= max) {
            lowest = std::min(lowest, size);
            highest = std::max(highest, size);
        }
    }
    if (lowest <= highest) {
        min = lowest;
        max = highest;
    }
}

/// Asks for less height only where the product has one so close above the limit that the module
/// would let it pass: a height that is none of the product's makes the dialog offer them all.
void KeepBelow(const OCArray<double>& heights, double limit, double& max)
{
    const auto slipsThrough = [=](double height) {
        return height > limit && height <= max + kHeightGrace;
    };
    if (std::any_of(heights.begin(), heights.end(), slipsThrough)) {
        max = limit - kHeightGrace;
    }
}

void NarrowToProduct(HK_DATEN_VDI3805_UEBERGABE& handover)
{
    OCArray<double> heights;
    OCArray<double> depths;
    CallModule(L"Misure di " + handover.Produkt, [&] { Read_HK_Masse(handover, heights, depths); });
    const double limit = handover.HoeheMax;
    Narrow(heights, handover.HoeheMin, handover.HoeheMax);
    KeepBelow(heights, limit, handover.HoeheMax);
    Narrow(depths, handover.TiefeMin, handover.TiefeMax);
}

/// What the room's other radiators give, as far as it is asked for: the dialog would open with less
/// than 0 W. Exactly 0 tells it that it chooses the first of several and makes it start with half
/// the demand; a radiator that is to give all that is left is asked for with the least that is not
/// 0.
double CoveredFor(const CRadiatorWish& wish)
{
    const double covered = std::min(wish.gedeckt, wish.bedarf);
    const bool isWhole = covered == 0.0 && wish.bedarf > 0.0 && !wish.bErster;
    return isWhole ? std::numeric_limits<double>::min() : covered;
}

} // namespace

HK_DATEN_VDI3805_UEBERGABE FillHandover(const CRadiatorWish& wish)
{
    HK_DATEN_VDI3805_UEBERGABE handover;
    handover.Hersteller = wish.produkt.strHersteller;
    handover.Art = wish.produkt.strArt;
    handover.Produkt = wish.produkt.strProdukt;
    handover.Leistung = wish.leistung;
    handover.Toleranz = kCoverTolerance;
    handover.HoeheMax = wish.grenzen.hoeheMax;
    handover.LaengeMax = wish.grenzen.laengeMax;
    handover.TiefeMin = wish.grenzen.tiefeMin;
    handover.TiefeMax = wish.grenzen.tiefeMax;
    handover.Vorlauf = wish.system.vorlauf;
    handover.Ruecklauf = wish.system.ruecklauf;
    handover.Raumtemperatur = wish.raumtemperatur;
    handover.Raumname = wish.strRaum;
    handover.RaumBedarf = wish.bedarf;
    handover.RaumGedeckt = CoveredFor(wish);
    // Radiators built to measure are made around the output, which is another for each wish.
    handover.NeuLesen = 1;
    NarrowToProduct(handover);
    return handover;
}

CRadiatorChoice ReadHandover(const HK_DATEN_VDI3805_UEBERGABE& handover)
{
    return {{handover.Hersteller, handover.Art, handover.Produkt},
            handover.TypName,
            handover.Daten,
            std::nullopt,
            std::nullopt};
}

} // namespace workbench
