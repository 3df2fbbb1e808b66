#include "valve/ventil_erklaerung.h"

#include "common/diagnosis.h"
#include "platform/exception.h"
#include "platform/file.h"
#include "platform/file_limits.h"
#include "platform/format.h"
#include "platform/path.h"
#include "valve/ventil_katalog.h"

namespace {

CString InQuotes(const CString& text)
{
    return L"\"" + text + L"\"";
}

/// Why the maker's file does not load.
CString UnreadReason(const CVentVdiKatalog& katalog, const CString& hersteller)
{
    if (katalog.DateiPfad.empty()) {
        return InQuotes(hersteller) + L" non può essere il nome della cartella di un produttore.";
    }
    const CString name = TextFromPath(ResolvePath(katalog.DateiPfad)) + L": ";
    if (katalog.HatNeuenKopf()) {
        return name + L"la testata 000 è di un altro tipo di file.";
    }
    try {
        const CFile file(katalog.DateiPfad, CFile::modeRead | CFile::shareDenyWrite);
        if (file.GetLength() > kLargestValveFile) {
            return name + DescribeTooLarge(kLargestValveFile);
        }
    } catch (const CFileException& fault) {
        return fault.GetErrorMessage();
    }
    return name + L"un record sta prima di quello a cui appartiene.";
}

int FindArticle(const CVentVdiKatalog& katalog, const CString& ventilNr)
{
    for (const auto* haupt = katalog.ErsteHauptgruppe; haupt != nullptr; haupt = haupt->Next) {
        for (const auto* gruppe = haupt->Gruppen; gruppe != nullptr; gruppe = gruppe->Next) {
            for (const VENT_VDI3805_ARTIKEL* artikel = gruppe->Artikel; artikel;
                 artikel = artikel->Next) {
                if (artikel->TgaNr == ventilNr) {
                    return artikel->ZeilenNr;
                }
            }
        }
    }
    return 0;
}

void TellMissing(const CVentVdiKatalog& katalog, const CString& ventilNr)
{
    const CString name = TextFromPath(ResolvePath(katalog.DateiPfad)) + L": ";
    if (const int line = FindArticle(katalog, ventilNr)) {
        TellDiagnosis(HostDiagnosis::noValveData, name + L"riga " + FormatInt(line) +
                                                      L": alla valvola " + ventilNr +
                                                      L" manca il record 700 a cui rimanda.");
    } else {
        TellDiagnosis(HostDiagnosis::unknownValve, name + L"non c'è la valvola " + ventilNr + L".");
    }
}

} // namespace

void ErklaereSchluessel(const CString& hersteller, const CString& ventilNr)
{
    if (HasDiagnosisListener()) {
        TellDiagnosis(HostDiagnosis::noValveKey,
                      L"La prima valvola ha il produttore " + InQuotes(hersteller) +
                          L" e il numero " + InQuotes(ventilNr) +
                          L": ci vogliono un nome e almeno " +
                          FormatInt(static_cast<long long>(kShortestVentilNr)) + L" caratteri.");
    }
}

void ErklaereFehlendesVentil(const CString& hersteller, const CString& ventilNr)
{
    if (!HasDiagnosisListener()) {
        return;
    }
    try {
        CVentVdiKatalog katalog;
        if (katalog.LadeHersteller(hersteller)) {
            TellMissing(katalog, ventilNr);
        } else {
            TellDiagnosis(HostDiagnosis::unreadValveFile, UnreadReason(katalog, hersteller));
        }
    } catch (const CException& failure) {
        // The search that found nothing raised none, so that none may come out of its explanation.
        TellDiagnosis(HostDiagnosis::unreadValveFile, failure.GetErrorMessage());
    }
}
