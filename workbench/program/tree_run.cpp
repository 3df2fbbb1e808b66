#include "workbench/program/tree_run.h"

#include "frame/entry_points.h"
#include "frame/handover.h"
#include "host/host_catalog.h"
#include "host/host_prefs.h"
#include "platform/format.h"
#include "reference_host/catalog/catalogue_errors.h"
#include "workbench/batch/arguments.h"
#include "workbench/batch/console.h"
#include "workbench/plan/module_call.h"
#include "workbench/program/dialog_run.h"

namespace workbench {

namespace {

constexpr double kLeistung = 1000.0;
constexpr double kRaumtemperatur = 20.0;
constexpr CHeatingSystem kUsualSystem{75.0, 65.0};

CString DescribeProdukt(const HK_DATEN_VDI3805_UEBERGABE& uebergabe)
{
    return uebergabe.Hersteller + L" / " + uebergabe.Art + L" / " + uebergabe.Produkt;
}

CString DescribePick(const HK_DATEN_VDI3805_UEBERGABE& uebergabe, bool confirmed)
{
    if (uebergabe.Produkt.empty()) {
        return L"Nessun prodotto scelto\n";
    }
    return (confirmed ? L"Prodotto scelto: " : L"Annullato; ultimo prodotto selezionato: ") +
           DescribeProdukt(uebergabe) + L"\n";
}

} // namespace

ExitCode RunTreeDialog(const CArguments& arguments, std::ostream& out, std::ostream& err)
{
    const CHeatingSystem system = arguments.system.value_or(kUsualSystem);
    if (kRaumtemperatur >= system.ruecklauf) {
        throw CArgumentException(L"--system: il ritorno non supera la temperatura del locale, " +
                                 FormatFixed(kRaumtemperatur, 0) + L" °C");
    }
    if (ReadHKDaten() == nullptr) {
        for (const CFileFault& fault : reference_host::GetListingErrors()) {
            Report(err, FormatFileFault(fault), ExitCode::badCatalogue);
        }
        return Report(err, L"nessun catalogo in " + GetHKDir(false), ExitCode::badCatalogue);
    }
    StartWindows();
    HK_DATEN_VDI3805_UEBERGABE uebergabe;
    uebergabe.Leistung = kLeistung;
    uebergabe.Vorlauf = system.vorlauf;
    uebergabe.Ruecklauf = system.ruecklauf;
    uebergabe.Raumtemperatur = kRaumtemperatur;
    const int answer = CallModule(L"Scelta del prodotto",
                                  [&] { return HeizkoerperauswahlVDI3805Tree(&uebergabe); });
    const bool confirmed = answer == 0;
    return Show(DescribePick(uebergabe, confirmed), confirmed ? ExitCode::ok : ExitCode::cancelled,
                out, err);
}

} // namespace workbench
