#include "tests/faults/stores.h"

#include "common/heizung_ordner.h"
#include "common/platzierung_datei.h"
#include "common/startwerte.h"
#include "frame/hkauswahl_uebergabe.h"
#include "host/host_prefs.h"
#include "platform/encoding.h"
#include "platform/exception.h"
#include "platform/format.h"
#include "platform/number_scan.h"
#include "reference_host/prefs/host_settings.h"
#include "selection/auswahl_speicher.h"
#include "selection/heizsysteme.h"
#include "tests/support/test_liste.h"
#include "tools/make_building_samples.h"
#include "workbench/building/building_json.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Damaged(const std::string& what)
{
    std::cerr << "damaged: " << what << '\n';
    std::exit(EXIT_FAILURE);
}

bool PutPlace(const CString& name, int number)
{
    SchreibePlatzierung(name, {number, number, number, number}, number);
    return true;
}

int GetPlace(const CString& name)
{
    CRect rect;
    int alpha = 0;
    if (!LesePlatzierung(name, rect, &alpha)) {
        return 0;
    }
    if (rect != CRect{alpha, alpha, alpha, alpha}) {
        Damaged("place");
    }
    return alpha;
}

bool PutList(const CString& name, int number)
{
    return ListeSchreiben(name, CTestListe({FormatInt(number), FormatInt(number)}), kGewerkHeizung);
}

int GetList(const CString& name)
{
    CTestListe list;
    if (!ListeLesen(name, list, kGewerkHeizung)) {
        return 0;
    }
    if (list.Anzahl() != 2 || list.Text(0) != list.Text(1)) {
        Damaged("list");
    }
    return _wtoi(list.Text(0));
}

/// The record has fields instead of names: "a" is the heating system, any other the distances.
bool PutStart(const CString& name, int number)
{
    VDI6030START start = LeseStartwerte();
    if (name == L"a") {
        start.SystemVorlauf = number;
        start.SystemRuecklauf = number;
    } else {
        start.AbstandWand = number;
        start.AbstandBoden = number;
    }
    return WriteDefFile_VDI6030START(&start, false);
}

int GetStart(const CString& name)
{
    const VDI6030START start = LeseStartwerte();
    if (start.SystemVorlauf != start.SystemRuecklauf || start.AbstandWand != start.AbstandBoden) {
        Damaged("start values");
    }
    return name == L"a" ? start.SystemVorlauf : static_cast<int>(start.AbstandWand);
}

bool PutLayer(const CString& name, int number)
{
    LayerMerken(name, number);
    return true;
}

int GetLayer(const CString& name)
{
    CString layer;
    int number = 0;
    LayerVorgabe(L"", layer, number);
    return layer == name ? number : 0;
}

workbench::CBuilding MakeSample(std::size_t rooms)
{
    workbench::CBuilding building = workbench::MakeLargeBuilding(rooms);
    workbench::PlaceSampleRadiators(building);
    return building;
}

/// Of different sizes, so that a longer one left below a shorter one would show.
workbench::CBuilding MakeBuilding(const CString& name, int number)
{
    static const workbench::CBuilding small = MakeSample(50);
    static const workbench::CBuilding large = MakeSample(80);
    workbench::CBuilding building = number % 2 == 0 ? small : large;
    building.strName = name + FormatInt(number);
    return building;
}

bool PutBuilding(const CString& path, const CString& name, int number)
{
    try {
        workbench::WriteBuilding(path, MakeBuilding(name, number));
        return true;
    } catch (const CFileException&) {
        return false;
    }
}

int GetBuilding(const CString& path, const CString& name)
{
    const workbench::CBuilding building = workbench::ReadBuilding(path);
    const int number = _wtoi(building.strName.substr(1));
    if (workbench::FormatBuilding(building) !=
        workbench::FormatBuilding(MakeBuilding(building.strName.substr(0, 1), number))) {
        Damaged("building");
    }
    return building.strName.starts_with(name) ? number : 0;
}

void SetFolder(const wchar_t* key, const fs::path& folder)
{
    fs::create_directories(folder);
    const CString wanted = WideFromUtf8(folder.native());
    if (reference_host::GetHostSetting(key, {}) != wanted) {
        reference_host::StoreHostSetting(key, wanted);
    }
}

} // namespace

std::vector<CStore> OpenStores(const std::string& folder)
{
    const fs::path root = fs::absolute(folder);
    setenv("XDG_CONFIG_HOME", (root / "config").c_str(), 1);
    SetFolder(reference_host::kSettingLocalPath, root / "local");
    SetFolder(reference_host::kSettingServerPath, root / "server");
    SetFolder(reference_host::kSettingDefFolder, root / "records");
    fs::create_directories(root / "server/HEIZUNG");
    const CString plan = WideFromUtf8((root / "casa.json").native());

    const auto putSetting = reference_host::StoreHostSetting;
    return {
        {"settings", true, true,
         [=](const CString& name, int number) { return putSetting(name, FormatInt(number)); },
         [](const CString& name) { return _wtoi(reference_host::GetHostSetting(name, {})); }},
        {"places", true, false, PutPlace, GetPlace},
        {"lists", true, true, PutList, GetList},
        {"start", true, true, PutStart, GetStart},
        {"layer", false, false, PutLayer, GetLayer},
        {"building", false, true,
         [plan](const CString& name, int number) { return PutBuilding(plan, name, number); },
         [plan](const CString& name) { return GetBuilding(plan, name); }},
    };
}
