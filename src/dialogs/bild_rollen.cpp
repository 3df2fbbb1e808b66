#include "dialogs/bild_rollen.h"

#include <algorithm>

CScrollBedarf ScrollbalkenFuer(int breite, int hoehe, int bildBreite, int bildHoehe,
                               int balkenBreite)
{
    CScrollBedarf bedarf{false, false, breite, hoehe};
    const auto pruefeBreite = [&] {
        if (!bedarf.horizontal && bildBreite > bedarf.breite) {
            bedarf.horizontal = true;
            bedarf.hoehe -= balkenBreite;
        }
    };
    pruefeBreite();
    if (bildHoehe > bedarf.hoehe) {
        bedarf.vertikal = true;
        bedarf.breite -= balkenBreite;
        pruefeBreite();
    }
    return bedarf;
}

int NeueScrollPosition(int position, ScrollAction action, int daumen, int bildGroesse, int groesse)
{
    constexpr int kSeite = 20;
    if (bildGroesse <= groesse) {
        return position;
    }
    int neu = position;
    switch (action) {
    case ScrollAction::lineBack:
    case ScrollAction::toStart:
        neu = position - 1;
        break;
    case ScrollAction::pageBack:
        neu = position - kSeite;
        break;
    case ScrollAction::lineForward:
    case ScrollAction::toEnd:
        neu = position + 1;
        break;
    case ScrollAction::pageForward:
        neu = position + kSeite;
        break;
    case ScrollAction::thumb:
        neu = daumen;
        break;
    }
    return std::min(std::max(neu, 0), bildGroesse - groesse);
}
