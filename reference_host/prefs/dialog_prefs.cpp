#include "host/host_prefs.h"

#include "host_defaults/answers.h"
#include "platform/color.h"
#include "reference_host/prefs/host_settings.h"

#include <cstdint>
#include <optional>
#include <string>

using namespace reference_host;

namespace {

constexpr wchar_t kYes[] = L"1";

bool IsYes(const CString& key)
{
    return GetHostSetting(key, CString()) == kYes;
}

/// Key of a skin colour, null for a type that there is none of.
const wchar_t* KeyOf(LumoSkinType type)
{
    switch (type) {
    case skinHintergrund:
        return kSettingSkinHintergrund;
    case skinSchaltflaeche:
        return kSettingSkinSchaltflaeche;
    case skinRahmen:
        return kSettingSkinRahmen;
    case skinListe:
        return kSettingSkinListe;
    case skinEingabe:
        return kSettingSkinEingabe;
    }
    return nullptr;
}

/// A text "#RRGGBB"; nothing for any other.
std::optional<COLORREF> ColorFromText(const CString& text)
{
    constexpr wchar_t kDigits[] = L"0123456789abcdef";
    if (text.size() != 7 || text[0] != L'#') {
        return std::nullopt;
    }
    const CString digits = ToLower(text.substr(1));
    if (digits.find_first_not_of(kDigits) != CString::npos) {
        return std::nullopt;
    }
    const auto value = static_cast<std::uint32_t>(std::stoul(digits, nullptr, 16));
    return RGB(static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8),
               static_cast<std::uint8_t>(value));
}

} // namespace

bool lmGetAllowLumoSkin(bool& allow)
{
    allow = IsYes(kSettingAllowSkin);
    return true;
}

bool lmGetLumoSkinColor(LumoSkinType type, unsigned long& color)
{
    const wchar_t* const key = KeyOf(type);
    if (key == nullptr) {
        return false;
    }
    const std::optional<COLORREF> set = ColorFromText(GetHostSetting(key, CString()));
    if (!set) {
        return false;
    }
    color = *set;
    return true;
}

bool lmGetAllowEnterAsTab(bool& allow)
{
    allow = IsYes(kSettingEnterAsTab);
    return true;
}

bool lmGetCurrentWinposFile(CString& name)
{
    host_defaults::lmGetCurrentWinposFile(name);
    name = GetHostSetting(kSettingWinposFile, name);
    return true;
}

bool lmGetUseVistaBanner(bool& use)
{
    use = IsYes(kSettingVistaBanner);
    return true;
}

bool lmGetProductLongName(CString& name)
{
    name = GetHostSetting(kSettingProductName, L"Workbench Termotecnica");
    return true;
}
