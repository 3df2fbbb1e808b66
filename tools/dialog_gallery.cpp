#include "tools/dialog_gallery.h"

#include "connection/dialog/wand_ab_dlg.h"
#include "connection/presets.h"
#include "frame/conn_values.h"
#include "frame/entry_points.h"
#include "frame/handover.h"
#include "frame/ventil_kv.h"
#include "platform/path.h"
#include "reference_host/prefs/host_settings.h"
#include "tools/radiator_gallery.h"
#include "valve/ventil_bewertung.h"
#include "valve/ventil_katalog.h"
#include "workbench/drawing/scene_drawer.h"

using namespace reference_host;

using namespace workbench;

namespace {

CString Folder(const std::string& dataFolder, const char* name)
{
    return TextFromPath(std::filesystem::path(dataFolder) / name);
}

/// Number of an article of a maker: the last one, or the first one with a bypass.
CString SampleValve(const CString& maker, bool bypass)
{
    CVentVdiKatalog katalog;
    katalog.LadeHersteller(maker);
    const VENT_VDI3805_ARTIKEL* found = nullptr;
    for (const auto* haupt = katalog.ErsteHauptgruppe; haupt != nullptr; haupt = haupt->Next) {
        for (const auto* gruppe = haupt->Gruppen; gruppe != nullptr; gruppe = gruppe->Next) {
            for (const VENT_VDI3805_ARTIKEL* a = gruppe->Artikel; a != nullptr; a = a->Next) {
                if (HatBypass(*a) == bypass && (found == nullptr || !bypass)) {
                    found = a;
                }
            }
        }
    }
    return found != nullptr ? found->TgaNr : CString();
}

void OpenValveDialog(const CString& maker, bool bypass)
{
    VDI3805_VENTIL_KV ventil;
    ShowVentVDI3805Dlg(SampleValve(maker, bypass), maker, ventil);
}

/// A connection with all that a record can hold: points of a sample type, distances, graphics.
ConnValues SampleConnection()
{
    ConnValues connection;
    connection.AnschlussAN = AnschlussPreset(14);
    connection.AnschlussRI = AnschlussPreset(15);
    connection.PosAN = {0.5, 0.0, 0.5};
    connection.OffsetAN = {0.0, 0.0, -0.03};
    connection.PosRI = {0.5, 0.0, -0.5};
    connection.OffsetRI = {0.0, 0.0, 0.03};
    connection.SeitAbstandAN = 0.15;
    connection.SeitAbstandRI = 0.05;
    connection.KreuzTyp = 1;
    connection.KreuzAbstand = 0.08;
    connection.WandAbstand = 0.035;
    return connection;
}

void OpenConnectionDialog(const ConnValues& start, bool superUser)
{
    OverrideHostSetting(kSettingSuperUser, superUser ? L"1" : L"0");
    QGraphicsScene scene;
    CSceneDrawer drawer(scene, {});
    ConnValues connection = start;
    VDI3805_VENTIL_KV flow;
    VDI3805_VENTIL_KV back;
    flow.Hersteller = back.Hersteller = L"Fontespada";
    flow.VentilNr = SampleValve(L"Fontespada", false);
    back.VentilNr = SampleValve(L"Fontespada", true);
    bool groups = true;
    bool withValves = true;
    bool withType = true;
    bool fanCoil = false;
    ShowVentDlg(connection, flow, back, groups, withValves, withType, fanCoil, nullptr, &drawer);
}

/// Without valves and drawing.
void OpenEmptyConnectionDialog()
{
    OverrideHostSetting(kSettingSuperUser, L"0");
    ConnValues connection;
    VDI3805_VENTIL_KV flow;
    VDI3805_VENTIL_KV back;
    bool groups = false;
    bool withValves = true;
    bool withType = true;
    bool fanCoil = false;
    ShowVentDlg(connection, flow, back, groups, withValves, withType, fanCoil, nullptr, nullptr);
}

void OpenTreeDialog(const CString& maker, const CString& kind, const CString& product)
{
    HK_DATEN_VDI3805_UEBERGABE uebergabe;
    uebergabe.Hersteller = maker;
    uebergabe.Art = kind;
    uebergabe.Produkt = product;
    uebergabe.Leistung = 1000.0;
    HeizkoerperauswahlVDI3805Tree(&uebergabe);
}

} // namespace

std::vector<GalleryEntry> DialogGallery(const std::string& dataFolder)
{
    OverrideHostSetting(kSettingVEDir, Folder(dataFolder, "valves"));
    OverrideHostSetting(kSettingHKDir, Folder(dataFolder, "catalogues"));
    OverrideHostSetting(kSettingServerPath, Folder(dataFolder, "root"));
    OverrideHostSetting(kSettingLocalPath, Folder(dataFolder, "workplace"));
    OverrideHostSetting(kSettingValveBlockFolder, Folder(dataFolder, "drawing/ventile.dxf"));
    OverrideHostSetting(kSettingDefFolder, Folder(dataFolder, "workplace"));
    OverrideHostSetting(kSettingHKBlockFolder, Folder(dataFolder, "drawing/heizkoerper.dxf"));
    std::vector<GalleryEntry> dialogs = {
        {"scelta_valvola", [] { OpenValveDialog(L"Fontespada", false); }},
        {"scelta_valvola_monotubo", [] { OpenValveDialog(L"Fontespada", true); }},
        {"scelta_valvola_vuota",
         [] {
             VDI3805_VENTIL_KV ventil;
             ShowVentVDI3805Dlg(L"", L"", ventil);
         }},
        {"attacco", [] { OpenConnectionDialog(SampleConnection(), false); }},
        {"attacco_esteso", [] { OpenConnectionDialog(SampleConnection(), true); }, {1024, 18074}},
        {"attacco_vuoto", OpenEmptyConnectionDialog},
        {"albero",
         [] { OpenTreeDialog(L"Valmorena", L"Radiatori a piastra compatti", L"Tipo 22"); }},
        {"albero_vuoto", [] { OpenTreeDialog(L"", L"", L""); }},
        {"distanze", [] { CWandAbDlg().DoModal(); }},
    };
    for (const GalleryEntry& entry : RadiatorGallery()) {
        dialogs.push_back(entry);
    }
    return dialogs;
}
