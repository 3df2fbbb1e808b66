#include "tools/dialog_gallery.h"

#include "frame/entry_points.h"
#include "frame/ventil_kv.h"
#include "platform/path.h"
#include "valve/ventil_bewertung.h"
#include "valve/ventil_katalog.h"
#include "workbench/host_prefs/host_settings.h"

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
            for (const auto* a = gruppe->Artikel; a != nullptr; a = a->Next) {
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

} // namespace

std::vector<GalleryEntry> DialogGallery(const std::string& dataFolder)
{
    OverrideHostSetting(kSettingVEDir, Folder(dataFolder, "valves"));
    OverrideHostSetting(kSettingHKDir, Folder(dataFolder, "catalogues"));
    OverrideHostSetting(kSettingServerPath, Folder(dataFolder, "root"));
    OverrideHostSetting(kSettingLocalPath, Folder(dataFolder, "workplace"));
    return {
        {"scelta_valvola", [] { OpenValveDialog(L"Fontespada", false); }},
        {"scelta_valvola_monotubo", [] { OpenValveDialog(L"Fontespada", true); }},
        {"scelta_valvola_vuota",
         [] {
             VDI3805_VENTIL_KV ventil;
             ShowVentVDI3805Dlg(L"", L"", ventil);
         }},
    };
}
