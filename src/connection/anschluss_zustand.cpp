#include "connection/anschluss_zustand.h"

#include "common/units.h"
#include "connection/bild_geometrie.h"
#include "connection/presets.h"
#include "platform/format.h"

#include <cmath>
#include <cstddef>
#include <utility>

namespace {

/// Side distances in metres of points that need some and have none.
constexpr double kSeitAbstandAN = 0.1;
constexpr double kSeitAbstandRI = 0.05;

/// Presets of a record without points: both go to the flow point, of which the second one stays.
constexpr int kErsterPreset = 0;
constexpr int kLetzterPreset = 15;

/// A return text shorter than this holds no point worth a name.
constexpr std::size_t kKuerzesterPunkt = 11;

/// Most characters of a point text that an exchange carries over.
constexpr std::size_t kLaengsterTausch = 511;

void SetzeVorgaben(CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht)
{
    zustand.m_TextSeitAN = MeterToText(kSeitAbstandAN);
    zustand.m_TextSeitRI = MeterToText(kSeitAbstandRI);
    ansicht.ZeigeFelder();
}

/// The angles of the flow point take no part: a type is the same type whichever way its flow turns.
bool GleichePunkte(const ConnValues& a, const ConnValues& b)
{
    return a.PosAN == b.PosAN && a.OffsetAN == b.OffsetAN && a.PosRI == b.PosRI &&
           a.OffsetRI == b.OffsetRI && a.WinkelRI == b.WinkelRI;
}

/// False if a point text that had to be read could not be.
bool ErgaenzePunkte(ConnValues& werte)
{
    if (werte.AnschlussAN.empty() || werte.AnschlussRI.empty()) {
        werte.AnschlussAN = AnschlussPreset(kErsterPreset);
        werte.AnschlussAN = AnschlussPreset(kLetzterPreset);
    }
    if (werte.PosRI != werte.PosAN) {
        return true;
    }
    return LesePunktTextGekreuzt(werte, Punkt::vorlauf) &&
           LesePunktTextGekreuzt(werte, Punkt::ruecklauf);
}

void WaehleEintrag(int index, CAnschlussAnsicht& ansicht)
{
    ansicht.Typen().Waehlen(index);
    ansicht.WaehleAnschlussTyp();
}

/// Makes the record handed in the working record; one with a return point gets a name that only the
/// list of names knows.
void UebernehmeEingang(CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht)
{
    zustand.m_Aktuell = zustand.m_Eingang;
    if (zustand.m_Aktuell.AnschlussRI.size() < kKuerzesterPunkt) {
        return;
    }
    ansicht.ZeichneVorschau();
    CAuswahlListe& typen = ansicht.Typen();
    const int index = typen.Anzahl();
    typen.Hinzufuegen(L"_" + FormatInt(index) + L"_");
    typen.Waehlen(index);
}

} // namespace

void PruefeSeitAbstand(CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht)
{
    ConnValues& werte = zustand.m_Aktuell;
    if (werte.WinkelAN[1] != 0.0 || werte.WinkelRI[1] != 0.0) {
        werte.SeitAbstandRI = 0.0;
        werte.SeitAbstandAN = 0.0;
        return;
    }
    const double xAN = BildAbszisse(werte.PosAN, werte.OffsetAN);
    const double xRI = BildAbszisse(werte.PosRI, werte.OffsetRI);
    const bool hatAN = werte.SeitAbstandAN != 0.0;
    const bool hatRI = werte.SeitAbstandRI != 0.0;
    if (xRI == xAN) {
        if (!hatAN || !hatRI || werte.SeitAbstandAN == werte.SeitAbstandRI) {
            SetzeVorgaben(zustand, ansicht);
        }
    } else if (std::fabs(xAN) == std::fabs(xRI) && !hatAN && !hatRI) {
        SetzeVorgaben(zustand, ansicht);
    }
}

void SetzePreset(int row, CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht)
{
    if (zustand.m_Punkt == Punkt::keiner) {
        zustand.m_Punkt = Punkt::vorlauf;
        ansicht.ZeigePunkt(zustand.m_Punkt);
    }
    ConnValues& werte = zustand.m_Aktuell;
    werte.*FelderVon(zustand.m_Punkt).text = AnschlussPreset(row);
    if (!LesePunktTextGekreuzt(werte, zustand.m_Punkt)) {
        return;
    }
    werte.SeitAbstandAN = zustand.m_Eingang.SeitAbstandAN;
    werte.SeitAbstandRI = zustand.m_Eingang.SeitAbstandRI;
    ansicht.ZeichneAnschluss();
    ansicht.ZeichneVorschau();
}

void TauscheAnRi(CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht)
{
    ConnValues& werte = zustand.m_Aktuell;
    std::swap(werte.WinkelAN, werte.WinkelRI);
    std::swap(werte.PosAN, werte.PosRI);
    std::swap(werte.OffsetAN, werte.OffsetRI);

    const CString zwischen = werte.AnschlussAN.substr(0, kLaengsterTausch);
    werte.AnschlussAN = werte.AnschlussRI;
    werte.AnschlussRI = zwischen;

    ansicht.ZeichneAnschluss();
    ansicht.ZeichneVorschau();
}

void FindeAnschlussTyp(CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht)
{
    if (!ErgaenzePunkte(zustand.m_Eingang)) {
        return;
    }
    for (int index = 0; index < zustand.m_Anschlussliste.GetSize(); ++index) {
        if (GleichePunkte(zustand.m_Anschlussliste[index], zustand.m_Eingang)) {
            WaehleEintrag(index, ansicht);
            return;
        }
    }
    UebernehmeEingang(zustand, ansicht);
}
