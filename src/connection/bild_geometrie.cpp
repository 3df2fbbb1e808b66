#include "connection/bild_geometrie.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kOffsetFaktor = 3.0;

/// Pixels cut towards zero. What no integer holds counts as a place far outside, not-a-number as 0.
int Pixel(double value)
{
    constexpr double kFarOutside = 1.0e9;
    if (std::isnan(value)) {
        return 0;
    }
    return static_cast<int>(std::clamp(value, -kFarOutside, kFarOutside));
}

/// An angle turned round for the flow point, within one turn.
double Gedreht(double winkel, bool istVorlauf)
{
    if (!istVorlauf) {
        return winkel;
    }
    const double gedreht = winkel + 180.0;
    if (gedreht >= 360.0) {
        return gedreht - 360.0;
    }
    return gedreht < 0.0 ? gedreht + 360.0 : gedreht;
}

} // namespace

CRect FrontAnsicht(const CRect& rahmen)
{
    constexpr int kRand = 12;
    return {rahmen.left + kRand, rahmen.top + kRand, rahmen.right - kRand, rahmen.bottom - kRand};
}

double BildAbszisse(const ConnVector& position, const ConnVector& offset)
{
    return position[0] + kOffsetFaktor * offset[0];
}

CPoint PunktAufBild(const CRect& bild, const ConnVector& position, const ConnVector& offset)
{
    const double u = BildAbszisse(position, offset);
    const double v = position[2] + kOffsetFaktor * offset[2];
    return {Pixel((bild.right - bild.left) * u) + (bild.left + bild.right) / 2,
            (bild.top + bild.bottom) / 2 - Pixel((bild.bottom - bild.top) * v)};
}

Pfeil Pfeilrichtung(double winkel1, double winkel2, bool istVorlauf)
{
    if (winkel2 == 0.0) {
        // Only the first quarter of a turn counts as right, so that 300 degrees are left as well.
        const double t = Gedreht(winkel1, istVorlauf);
        return t >= 0.0 && t < 90.0 ? Pfeil::rechts : Pfeil::links;
    }
    const double t = Gedreht(winkel2, istVorlauf);
    return t > 90.0 && t <= 270.0 ? Pfeil::unten : Pfeil::oben;
}

std::vector<CStrich> PfeilStriche(Pfeil richtung, CPoint ort)
{
    const auto [x, y] = ort;
    switch (richtung) {
    case Pfeil::rechts:
        return {{{x - 9, y}, {x + 9, y}, {x + 4, y - 4}}, {{x + 9, y}, {x + 4, y + 4}}};
    case Pfeil::links:
        return {
            {{x - 9, y}, {x + 9, y}}, {{x - 9, y}, {x - 4, y - 4}}, {{x - 9, y}, {x - 4, y + 4}}};
    case Pfeil::unten:
        return {{{x, y - 9}, {x, y + 9}, {x - 4, y + 4}}, {{x, y + 9}, {x + 4, y + 4}}};
    case Pfeil::oben:
        return {{{x, y + 9}, {x, y - 9}, {x - 4, y - 4}}, {{x, y - 9}, {x + 4, y - 4}}};
    }
    return {};
}
