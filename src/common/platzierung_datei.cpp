#include "common/platzierung_datei.h"

#include "common/arbeits_ordner.h"
#include "common/text_file.h"
#include "host/host_prefs.h"
#include "platform/format.h"
#include "platform/number_scan.h"

namespace {

constexpr wchar_t kTrenner = L'|';
constexpr int kFelderMitRechteck = 5;
constexpr int kFelderZumErsetzen = 4;
constexpr int kOpaque = 255;

CString DateiPfad()
{
    CString name;
    lmGetCurrentWinposFile(name);
    return ArbeitsPfad(name);
}

/// False if the file cannot be opened.
bool LeseZeilen(CStringArray& zeilen)
{
    CFile datei;
    if (!datei.Open(DateiPfad(), CFile::modeRead)) {
        return false;
    }
    ReadTextLines(datei, zeilen, -1);
    return true;
}

/// First line of the key that has at least that many fields; -1 if there is none.
int SucheZeile(const CStringArray& zeilen, const CString& schluessel, int mindestFelder,
               CStringArray& felder)
{
    for (int i = 0; i < zeilen.GetSize(); ++i) {
        felder.RemoveAll();
        const int anzahl = SplitString(felder, zeilen[i], kTrenner);
        if (anzahl >= mindestFelder && felder[0] == schluessel) {
            return i;
        }
    }
    return -1;
}

CString Zeile(const CString& schluessel, const CRect& rect, int alpha)
{
    CString zeile = schluessel + kTrenner;
    for (const int wert : {rect.left, rect.right, rect.top, rect.bottom, alpha}) {
        zeile += FormatInt(wert) + kTrenner;
    }
    return zeile;
}

/// Puts the line in the place of the first one of its key, or else at the end.
void Ersetze(CStringArray& zeilen, const CString& schluessel, const CString& neu)
{
    CStringArray felder;
    const int stelle = SucheZeile(zeilen, schluessel, kFelderZumErsetzen, felder);
    if (stelle >= 0) {
        zeilen[stelle] = neu;
    } else {
        zeilen.Add(neu);
    }
}

} // namespace

bool LesePlatzierung(const CString& schluessel, CRect& rect, int* alpha)
{
    CStringArray zeilen;
    bool lesbar = false;
    MitArbeitsDatei([&] { lesbar = LeseZeilen(zeilen); });
    if (!lesbar) {
        rect = {};
        if (alpha != nullptr) {
            *alpha = kOpaque;
        }
        return false;
    }
    CStringArray felder;
    if (SucheZeile(zeilen, schluessel, kFelderMitRechteck, felder) < 0) {
        return false;
    }
    rect = {_wtoi(felder[1]), _wtoi(felder[3]), _wtoi(felder[2]), _wtoi(felder[4])};
    if (alpha != nullptr && felder.GetSize() > kFelderMitRechteck) {
        *alpha = _wtoi(felder[kFelderMitRechteck]);
    }
    return true;
}

void SchreibePlatzierung(const CString& schluessel, const CRect& rect, int alpha)
{
    MitArbeitsDatei([&] {
        CStringArray zeilen;
        // The first dialog of a fresh installation lays out the file, the second one begins to
        // keep places in it; programs that share the file count on finding it empty first.
        if (LeseZeilen(zeilen)) {
            Ersetze(zeilen, schluessel, Zeile(schluessel, rect, alpha));
        }
        WriteTextFile(DateiPfad(), zeilen, false, false, CFile::modeCreate | CFile::modeWrite);
    });
}
