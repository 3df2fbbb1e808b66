#include "common/platzierung_datei.h"

#include "common/arbeits_ordner.h"
#include "common/text_file.h"
#include "host/host_prefs.h"
#include "platform/file_limits.h"
#include "platform/file_lock.h"
#include "platform/format.h"
#include "platform/number_scan.h"

#include <cerrno>

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

/// 0, or the system's reason if the file cannot be opened, or EFBIG if it is beyond its limit.
int LeseZeilen(const CString& pfad, CStringArray& zeilen)
{
    CFile datei;
    if (!datei.Open(pfad, CFile::modeRead)) {
        return datei.GetOpenError();
    }
    if (datei.GetLength() > kLargestPlacementFile) {
        return EFBIG;
    }
    ReadTextLines(datei, zeilen, -1);
    return 0;
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
    MitArbeitsDatei([&] { lesbar = LeseZeilen(DateiPfad(), zeilen) == 0; });
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
        const CString pfad = DateiPfad();
        const CFileLock sperre(pfad);
        CStringArray zeilen;
        const int fehler = LeseZeilen(pfad, zeilen);
        if (fehler != 0 && fehler != ENOENT) {
            // It may hold all places that were ever kept.
            return;
        }
        // The first dialog of a fresh installation lays out the file, the second one begins to
        // keep places in it; programs that share the file count on finding it empty first.
        if (fehler == 0) {
            Ersetze(zeilen, schluessel, Zeile(schluessel, rect, alpha));
        }
        WriteTextFile(pfad, zeilen, false, false, CFile::modeCreate | CFile::modeWrite);
    });
}
