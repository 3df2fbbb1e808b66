#include "connection/kurzliste.h"

#include "common/heizung_ordner.h"
#include "common/text_file.h"
#include "platform/file.h"
#include "platform/file_fault.h"
#include "platform/path.h"

namespace {

constexpr wchar_t kDateiName[] = L"Vent.txt";
constexpr int kWenigsteZahlen = 3;

/// The name between the first and the last character of a name line, whatever the last one is.
CString NameAus(const CString& zeile)
{
    return zeile.size() < 2 ? CString() : zeile.substr(1, zeile.size() - 2);
}

/// The rest of a line that begins with its mark; an empty text if it begins with anything else.
CString RestHinter(wchar_t kennung, const CString& zeile)
{
    return zeile.starts_with(kennung) ? zeile.substr(1) : CString();
}

void SetzeEintrag(CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht, int gewaehlt)
{
    if (!zustand.m_bNeu) {
        zustand.m_Anschlussliste[gewaehlt] = zustand.m_Aktuell;
        return;
    }
    CAuswahlListe& typen = ansicht.Typen();
    typen.Hinzufuegen(zustand.m_TextName);
    zustand.m_Anschlussliste.Add(zustand.m_Aktuell);
    typen.Waehlen(typen.Anzahl() - 1);
}

void SchreibeListe(const Anschlussliste& liste)
{
    // One buffer for the path and then for every line, so that the name given to the writer is the
    // last line and not the path: see the header.
    CString puffer = HeizungPfad(kDateiName);
    CStringArray zeilen;
    for (const ConnValues& eintrag : liste) {
        puffer = L"[" + eintrag.Name + L"]";
        zeilen.Add(puffer);
        puffer = L"V" + eintrag.AnschlussAN;
        zeilen.Add(puffer);
        puffer = L"R" + eintrag.AnschlussRI;
        zeilen.Add(puffer);
    }
    WriteTextFile(puffer, zeilen, false, false, CFile::modeCreate | CFile::modeWrite);
}

} // namespace

bool LeseVentTxt(CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht)
{
    const CString pfad = HeizungPfad(kDateiName);
    CStringArray zeilen;
    if (ReadTextFile(pfad, zeilen, CFile::modeRead, -1) == 0) {
        return false;
    }
    CString name;
    for (int i = 0; i < zeilen.GetSize(); ++i) {
        if (zeilen[i].starts_with(L'[')) {
            name = NameAus(zeilen[i]);
            ansicht.Typen().Hinzufuegen(name);
            continue;
        }
        const CString vorlauf = RestHinter(L'V', zeilen[i]);
        if (++i == zeilen.GetSize()) {
            throw CInvalidArgException(FormatFileFault(
                {i, L"manca la riga del punto di ritorno", TextFromPath(ResolvePath(pfad))}));
        }
        const CString ruecklauf = RestHinter(L'R', zeilen[i]);
        NeuerEintrag(zustand.m_Anschlussliste, name, vorlauf, ruecklauf);
    }
    return true;
}

bool NeuerEintrag(Anschlussliste& liste, const CString& name, const CString& vorlauf,
                  const CString& ruecklauf)
{
    ConnValues werte;
    werte.Name = name;
    werte.AnschlussAN = vorlauf;
    werte.AnschlussRI = ruecklauf;
    for (const Punkt punkt : {Punkt::vorlauf, Punkt::ruecklauf}) {
        if (LesePunktText(werte, punkt) < kWenigsteZahlen) {
            return false;
        }
    }
    liste.Add(werte);
    return true;
}

void SchreibeVentTxt(CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht)
{
    const int gewaehlt = ansicht.Typen().Gewaehlt();
    if (gewaehlt < 0) {
        return;
    }
    ansicht.LeseFelder();
    zustand.m_Aktuell.Name = zustand.m_TextName;
    SetzeEintrag(zustand, ansicht, gewaehlt);
    SchreibeListe(zustand.m_Anschlussliste);
}
