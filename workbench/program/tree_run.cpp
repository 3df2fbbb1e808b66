#include "workbench/program/tree_run.h"

#include "frame/entry_points.h"
#include "frame/handover.h"
#include "host/host_catalog.h"
#include "host/host_prefs.h"
#include "platform/encoding.h"
#include "reference_host/prefs/host_settings.h"
#include "workbench/program/arguments.h"
#include "workbench/program/dialog_run.h"
#include "workbench/program/host_folders.h"

#include <ostream>

namespace workbench {

namespace {

constexpr double kLeistung = 1000.0;
constexpr double kRaumtemperatur = 20.0;
constexpr CHeatingSystem kSystem{75.0, 65.0};

void Write(std::ostream& stream, const CString& text)
{
    stream << Utf8FromWide(text) << '\n';
}

CString DescribeProdukt(const HK_DATEN_VDI3805_UEBERGABE& uebergabe)
{
    return uebergabe.Hersteller + L" / " + uebergabe.Art + L" / " + uebergabe.Produkt;
}

bool PickProdukt(const CArguments& arguments, std::ostream& out)
{
    const CHeatingSystem system = arguments.system.value_or(kSystem);
    HK_DATEN_VDI3805_UEBERGABE uebergabe;
    uebergabe.Leistung = kLeistung;
    uebergabe.Vorlauf = system.vorlauf;
    uebergabe.Ruecklauf = system.ruecklauf;
    uebergabe.Raumtemperatur = kRaumtemperatur;
    const bool confirmed = HeizkoerperauswahlVDI3805Tree(&uebergabe) == 0;
    if (uebergabe.Produkt.empty()) {
        Write(out, L"Nessun prodotto scelto");
    } else if (confirmed) {
        Write(out, L"Prodotto scelto: " + DescribeProdukt(uebergabe));
    } else {
        Write(out, L"Annullato; ultimo prodotto selezionato: " + DescribeProdukt(uebergabe));
    }
    return confirmed;
}

} // namespace

ExitCode RunTreeDialog(const std::vector<CString>& arguments, std::ostream& out, std::ostream& err)
{
    try {
        const CArguments parsed = ParseArguments(arguments);
        if (parsed.bHelp) {
            Write(out, GetHelpText());
            return ExitCode::ok;
        }
        if (!parsed.strCatalogues.empty()) {
            reference_host::OverrideHostSetting(reference_host::kSettingHKDir,
                                                parsed.strCatalogues);
        }
        if (ReadHKDaten() == nullptr) {
            Write(err, L"radsel_workbench: nessun catalogo in " + GetHKDir(false));
            return ExitCode::badCatalogue;
        }
        SetWorkplace(parsed);
        StartWindows();
        return PickProdukt(parsed, out) ? ExitCode::ok : ExitCode::cancelled;
    } catch (const CArgumentException& error) {
        Write(err, L"radsel_workbench: " + error.GetErrorMessage());
        return ExitCode::wrongArguments;
    }
}

} // namespace workbench
