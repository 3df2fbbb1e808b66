#pragma once

#include "platform/export.h"
#include "platform/text.h"

#include <optional>

namespace reference_host {

/// The settings of the reference host as texts by key, behind the getters of host/host_prefs.h.
/// They are kept in "settings.txt" in the user's configuration folder ($XDG_CONFIG_HOME/radsel, or
/// ~/.config/radsel), a versioned file that is replaced atomically. A missing or damaged file reads
/// as one without entries, and so does one of a later version, which is never written to. A damaged
/// file is kept as "settings.txt.damaged" when it is replaced. While a file cannot be read, what
/// the process has read last counts.

/// Value of a key: the override of this process if there is one, else the stored value, else
/// `fallback`.
HOST_API CString GetHostSetting(const CString& key, const CString& fallback);

/// False as long as there is a file of settings that this process could never read: then what is
/// not overridden may be set to something else than its fallback.
HOST_API bool AreHostSettingsKnown();

/// Sets a value for this process only; it wins over the stored one and is never written.
HOST_API void OverrideHostSetting(const CString& key, const CString& value);

/// Gives up the override of a key.
HOST_API void ClearHostSettingOverride(const CString& key);

/// Stores a value; all other entries stay, known or not, also those that another process stores
/// meanwhile. False if the file cannot be written; the old file is then still whole. Neither key
/// nor value may hold a line end, and the key no "=": such a call stores nothing and gives false.
HOST_API bool StoreHostSetting(const CString& key, const CString& value);

/// The folder in which the settings are, nothing for a user without a home.
HOST_API std::optional<CString> ConfigurationFolder();

/// Keys that the getters ask for. A yes is "1", any other value a no; a colour is "#RRGGBB".
inline constexpr wchar_t kSettingHKDir[] = L"HKDir";
inline constexpr wchar_t kSettingVEDir[] = L"VEDir";
inline constexpr wchar_t kSettingServerPath[] = L"ServerPfad";
inline constexpr wchar_t kSettingDrawingUnit[] = L"ZeichnungsEinheit";
inline constexpr wchar_t kSettingUserUnit[] = L"BenutzerEinheit";
inline constexpr wchar_t kSettingLocalPath[] = L"LokalerPfad";
inline constexpr wchar_t kSettingAllowSkin[] = L"SkinErlaubt";
inline constexpr wchar_t kSettingSkinHintergrund[] = L"SkinFarbeHintergrund";
inline constexpr wchar_t kSettingSkinSchaltflaeche[] = L"SkinFarbeSchaltflaeche";
inline constexpr wchar_t kSettingSkinRahmen[] = L"SkinFarbeRahmen";
inline constexpr wchar_t kSettingSkinListe[] = L"SkinFarbeListe";
inline constexpr wchar_t kSettingSkinEingabe[] = L"SkinFarbeEingabe";
inline constexpr wchar_t kSettingEnterAsTab[] = L"EnterAlsTab";
inline constexpr wchar_t kSettingWinposFile[] = L"FensterDatei";
inline constexpr wchar_t kSettingVistaBanner[] = L"ThemenBanner";
inline constexpr wchar_t kSettingProductName[] = L"Programmname";
inline constexpr wchar_t kSettingHelpFolder[] = L"HilfeOrdner";
inline constexpr wchar_t kSettingHelpProgram[] = L"HilfeProgramm";
inline constexpr wchar_t kSettingHKLayer[] = L"HKLayer";
inline constexpr wchar_t kSettingHKLayerColor[] = L"HKLayerFarbe";
inline constexpr wchar_t kSettingAutoLayer[] = L"LayerAutomatik";
inline constexpr wchar_t kSettingHKBlock[] = L"HKBlock";
inline constexpr wchar_t kSettingHKBlockFolder[] = L"HKBlockOrdner";
inline constexpr wchar_t kSettingValveBlockFolder[] = L"VentilBlockOrdner";
inline constexpr wchar_t kSettingSuperUser[] = L"SuperUser";
/// Folder of the records of host_prefs.h; the configuration folder if it is not set.
inline constexpr wchar_t kSettingDefFolder[] = L"DefOrdner";

} // namespace reference_host
