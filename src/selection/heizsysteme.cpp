#include "selection/heizsysteme.h"

#include "common/heizung_ordner.h"
#include "common/text_file.h"
#include "platform/file.h"
#include "platform/file_limits.h"
#include "platform/file_lock.h"
#include "platform/format.h"
#include "platform/number_scan.h"

#include <algorithm>
#include <cerrno>
#include <optional>

namespace {

constexpr wchar_t kHeizsystemeDatei[] = L"CmbData.txt";
constexpr wchar_t kVorgabe[] = L"Standard (75/65)";
constexpr wchar_t kTrenner = L'|';
constexpr wchar_t kMarke = L'*';
constexpr unsigned kNeueDatei = CFile::modeCreate | CFile::modeWrite;

CString Kopfzeile(const CString& name)
{
    return L"[" + name + L"]";
}

/// The lines of the file, none of a file that does not exist; nothing if it cannot be read or is
/// larger than a list may be. `rest` takes what stands behind the last line end.
std::optional<CStringArray> LeseZeilen(const CString& pfad, CString* rest = nullptr)
{
    CStringArray zeilen;
    CFile datei;
    if (!datei.Open(pfad, CFile::modeRead)) {
        return datei.GetOpenError() == ENOENT ? std::optional(zeilen) : std::nullopt;
    }
    try {
        if (datei.GetLength() > kLargestList) {
            return std::nullopt;
        }
        ReadTextLines(datei, zeilen, -1, rest);
    } catch (const CFileException&) {
        // A list of heating systems that is lost for now must not end the opening of the dialog.
        return std::nullopt;
    }
    return zeilen;
}

/// The same with a last line that has no line end: it belongs to someone's list and must survive
/// the writing. Left out is only a header of this very list without entries behind it, since it
/// would be found in place of the list that is written now.
std::optional<CStringArray> LeseZeilenMitRest(const CString& pfad, const CString& name)
{
    CString rest;
    std::optional<CStringArray> zeilen = LeseZeilen(pfad, &rest);
    if (zeilen && !rest.empty() && rest != Kopfzeile(name)) {
        zeilen->Add(rest);
    }
    return zeilen;
}

/// Index of the line behind the first one that `istKopf` accepts, -1 if there is no such line.
template <class IstKopf>
int EintragszeileHinter(const CStringArray& zeilen, IstKopf istKopf)
{
    const auto kopf = std::find_if(zeilen.begin(), zeilen.end(), istKopf);
    const auto index = static_cast<int>(kopf - zeilen.begin()) + 1;
    return index < zeilen.GetSize() ? index : -1;
}

int Eintragszeile(const CStringArray& zeilen, const CString& name)
{
    return EintragszeileHinter(
        zeilen, [kopf = Kopfzeile(name)](const CString& zeile) { return zeile == kopf; });
}

void FuelleListe(const CString& zeile, CAuswahlListe& liste)
{
    CStringArray teile;
    SplitString(teile, zeile, kTrenner);
    int aktuell = 0;
    for (int i = 0; i < teile.GetSize(); ++i) {
        CString& teil = teile[i];
        if (teil.ends_with(kMarke)) {
            std::erase(teil, kMarke);
            aktuell = i;
        }
        if (!teil.empty()) {
            liste.Hinzufuegen(teil);
        }
    }
    liste.Waehlen(aktuell);
}

CString ZeileAus(const CAuswahlListe& liste)
{
    const CString aktuell = liste.Text(liste.Gewaehlt());
    CString zeile;
    for (int i = 0; i < liste.Anzahl(); ++i) {
        const CString text = liste.Text(i);
        zeile += text;
        if (text == aktuell) {
            zeile += kMarke;
        }
        zeile += kTrenner;
    }
    return zeile;
}

CString Temperaturen(double vorlauf, double ruecklauf)
{
    return L"(" + FormatFixed(vorlauf, 0) + L"/" + FormatFixed(ruecklauf, 0) + L")";
}

/// What stands before the first bracket and the blank in front of it.
CString NameAus(const CString& text)
{
    const auto klammer = text.find(L'(');
    return klammer == CString::npos || klammer == 0 ? CString() : text.substr(0, klammer - 1);
}

} // namespace

bool ListeLesen(const CString& name, CAuswahlListe& liste, int gewerk)
{
    if (gewerk != kGewerkHeizung) {
        return false;
    }
    const std::optional<CStringArray> zeilen = LeseZeilen(HeizungPfad(kHeizsystemeDatei));
    return zeilen && ListeAusZeilen(*zeilen, name, liste);
}

bool ListeSchreiben(const CString& name, const CAuswahlListe& liste, int gewerk)
{
    if (gewerk != kGewerkHeizung) {
        return false;
    }
    try {
        const CString pfad = HeizungPfad(kHeizsystemeDatei);
        const CFileLock sperre(pfad);
        std::optional<CStringArray> zeilen = LeseZeilenMitRest(pfad, name);
        if (!zeilen) {
            return false;
        }
        ListeInZeilen(*zeilen, name, liste);
        return WriteTextFile(pfad, *zeilen, false, false, kNeueDatei);
    } catch (const CFileException&) {
        return false;
    }
}

bool ListeAusZeilen(const CStringArray& zeilen, const CString& name, CAuswahlListe& liste)
{
    const int zeile = Eintragszeile(zeilen, name);
    if (zeile >= 0) {
        FuelleListe(zeilen[zeile], liste);
        return true;
    }
    if (name != kListeHeizsysteme) {
        return false;
    }
    liste.Waehlen(liste.Hinzufuegen(kVorgabe));
    return true;
}

void ListeInZeilen(CStringArray& zeilen, const CString& name, const CAuswahlListe& liste)
{
    const int zeile = Eintragszeile(zeilen, name);
    if (zeile >= 0) {
        zeilen[zeile] = ZeileAus(liste);
    } else {
        zeilen.Add(Kopfzeile(name));
        zeilen.Add(ZeileAus(liste));
    }
}

int SystemSuchen(CString& name, double vorlauf, double ruecklauf)
{
    const std::optional<CStringArray> zeilen = LeseZeilen(HeizungPfad(kHeizsystemeDatei));
    if (!zeilen) {
        return -1;
    }
    // A header that someone indented or annotated still leads to its temperatures.
    const CString kopf = Kopfzeile(kListeHeizsysteme);
    const int zeile = EintragszeileHinter(
        *zeilen, [&kopf](const CString& text) { return text.find(kopf) != CString::npos; });
    if (zeile < 0) {
        return -1;
    }
    CStringArray teile;
    SplitString(teile, (*zeilen)[zeile], kTrenner);
    const CString paar = Temperaturen(vorlauf, ruecklauf);
    for (int i = 0; i < teile.GetSize(); ++i) {
        if (teile[i].find(paar) != CString::npos) {
            name = NameAus(teile[i]);
            return i;
        }
    }
    return -1;
}

bool SystemZerlegen(const CString& text, CString& name, double& vorlauf, double& ruecklauf)
{
    const auto klammer = text.find(L'(');
    const auto strich = text.rfind(L'/');
    const auto anfang = klammer == CString::npos ? 0 : klammer + 1;
    if (strich == CString::npos) {
        vorlauf = 0.0;
        ruecklauf = _wtof(text);
    } else {
        const CString hinten = text.substr(strich + 1);
        vorlauf = anfang < strich ? _wtof(text.substr(anfang, strich - anfang)) : 0.0;
        ruecklauf = hinten.empty() ? 0.0 : _wtof(hinten.substr(0, hinten.size() - 1));
    }
    name = NameAus(text);
    return true;
}

CString SystemText(const CString& name, double vorlauf, double ruecklauf)
{
    if (vorlauf == 0.0 || ruecklauf == 0.0 || name.empty()) {
        return {};
    }
    return name + L" " + Temperaturen(vorlauf, ruecklauf);
}

int EintragSuchen(CAuswahlListe& liste, const CString& text)
{
    if (text.empty()) {
        return 0;
    }
    const int index = SucheGleichen(liste, text);
    return index >= 0 ? index : liste.Hinzufuegen(text);
}

bool EintragLoeschen(CAuswahlListe& liste, const CString& text)
{
    if (!liste.Loeschen(SucheGleichen(liste, text))) {
        return false;
    }
    if (liste.Anzahl() > 0) {
        liste.Waehlen(0);
    }
    return true;
}
