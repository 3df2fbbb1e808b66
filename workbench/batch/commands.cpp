#include "workbench/batch/commands.h"

#include "reference_host/prefs/host_settings.h"
#include "workbench/batch/host_folders.h"

namespace workbench {

namespace {

template <CString CArguments::*FIELD>
void KeepText(CArguments& arguments, const CString& value)
{
    arguments.*FIELD = value;
}

template <bool CArguments::*FIELD>
void KeepYes(CArguments& arguments, const CString& /*value*/)
{
    arguments.*FIELD = true;
}

void KeepSystem(CArguments& arguments, const CString& value)
{
    arguments.system = ParseHeatingSystem(value);
    if (!arguments.system) {
        throw CArgumentException(L"--system: \"" + value +
                                 L"\" non è una coppia mandata/ritorno come 75/65, con il "
                                 L"ritorno sotto la mandata e la mandata non oltre 110 °C");
    }
}

void RequireBuilding(const CArguments& arguments)
{
    if (arguments.strBuilding.empty() && arguments.strSample.empty()) {
        throw CArgumentException(L"manca l'edificio: indicarlo con --building FILE");
    }
}

void UseSuperUser(const CArguments& arguments)
{
    if (arguments.bSuperUser) {
        reference_host::OverrideHostSetting(reference_host::kSettingSuperUser, L"1");
    }
}

constexpr COption kBuilding{L"--building", true, KeepText<&CArguments::strBuilding>,
                            RequireBuilding, true};
constexpr COption kSample{L"--sample", true, KeepText<&CArguments::strSample>, nullptr, true};
constexpr COption kOutput{L"--output", true, KeepText<&CArguments::strOutput>, nullptr, true};
constexpr COption kWorkplace{L"--workplace", true, KeepText<&CArguments::strWorkplace>,
                             UseWorkplace,   true, true};
constexpr COption kCatalogues{L"--catalogues", true, KeepText<&CArguments::strCatalogues>,
                              UseCatalogueFolder};
constexpr COption kValveCatalogues{L"--valve-catalogues", true,
                                   KeepText<&CArguments::strValveCatalogues>, UseValveFolder};
constexpr COption kSystem{L"--system", true, KeepSystem};
constexpr COption kRoom{L"--room", true, KeepText<&CArguments::strRoom>};
constexpr COption kSave{L"--save", true, KeepText<&CArguments::strSave>};
constexpr COption kValves{L"--valves", false, KeepYes<&CArguments::bValves>};
constexpr COption kCsvPlain{L"--csv-plain", false, KeepYes<&CArguments::bCsvPlain>};
constexpr COption kSuperUser{L"--superuser", false, KeepYes<&CArguments::bSuperUser>, UseSuperUser};

} // namespace

std::span<const CCommand> GetCommands()
{
    static const CCommand commands[] = {
        {nullptr,
         {},
         {&kBuilding, &kSample, &kCatalogues, &kValveCatalogues, &kWorkplace},
         CommandId::window},
        {L"--batch",
         {},
         {&kBuilding, &kSample, &kCatalogues, &kValveCatalogues, &kSystem, &kRoom, &kValves,
          &kCsvPlain, &kOutput, &kSave},
         CommandId::batch},
        {L"--radiator-dialog",
         {&CArguments::strRoom},
         {&kBuilding, &kSample, &kCatalogues, &kValveCatalogues, &kSystem, &kRoom, &kWorkplace},
         CommandId::radiatorDialog},
        {L"--tree-dialog", {}, {&kCatalogues, &kSystem, &kWorkplace}, CommandId::treeDialog},
        {L"--connection-dialog",
         {},
         {&kValveCatalogues, &kWorkplace, &kSuperUser},
         CommandId::connectionDialog},
        {L"--valve-dialog",
         {&CArguments::strMaker, &CArguments::strValveNumber},
         {&kValveCatalogues, &kWorkplace},
         CommandId::valveDialog},
        {L"--list-connections",
         {&CArguments::strConnectionList},
         {&kWorkplace},
         CommandId::listConnections},
        {L"--help", {}, {}, CommandId::help, true},
        {L"--version", {}, {}, CommandId::version, true},
    };
    return commands;
}

} // namespace workbench
