// The getters of the host: settings as the caller has told them, else the defaults of every host.

#include "c_interface/host/host_table.h"
#include "host_defaults/answers.h"
#include "platform/encoding.h"
#include "platform/environment.h"

#include <string>

using namespace c_interface;

namespace {

CString FolderOr(radsel_text_setting setting, const wchar_t* variable)
{
    if (const auto folder = AskText(setting)) {
        return *folder;
    }
    return GetEnvironment(variable).value_or(CString());
}

/// Delivers a text if it is known and not empty.
bool DeliverText(radsel_text_setting setting, CString& target)
{
    const auto text = AskText(setting);
    if (!text || text->empty()) {
        return false;
    }
    target = *text;
    return true;
}

bool DeliverFlag(radsel_number_setting setting, bool& target)
{
    const auto value = AskNumber(setting);
    if (value) {
        target = *value != 0;
    }
    return value.has_value();
}

} // namespace

CString GetHKDir(bool /*projectCopy*/)
{
    return FolderOr(RADSEL_CATALOGUE_FOLDER, L"RADSEL_HKDIR");
}

CString GetVEDir(bool /*projectCopy*/)
{
    return FolderOr(RADSEL_VALVE_FOLDER, L"RADSEL_VEDIR");
}

void lmGetDimension2(int& code)
{
    host_defaults::lmGetDimension2(code);
    code = AskNumber(RADSEL_DRAWING_UNIT).value_or(code);
}

int lmGetDimensionUsr()
{
    return AskNumber(RADSEL_USER_UNIT).value_or(host_defaults::lmGetDimensionUsr());
}

void lmGetHKLayer(CString& layer)
{
    if (!DeliverText(RADSEL_LAYER_NAME, layer)) {
        host_defaults::lmGetHKLayer(layer);
    }
}

void lmGetHKLayerColor(int& farbe)
{
    host_defaults::lmGetHKLayerColor(farbe);
    farbe = AskNumber(RADSEL_LAYER_COLOR).value_or(farbe);
}

void lmGetAutoLayerManagement(bool& automatisch, bool vorgabe)
{
    if (!DeliverFlag(RADSEL_AUTO_LAYER, automatisch)) {
        host_defaults::lmGetAutoLayerManagement(automatisch, vorgabe);
    }
}

bool lmGetDWGDefPath(const LumoDWGDefsNames& name, CString& path)
{
    switch (name) {
    case LumoDWGDefsNames::heizkoerper:
        return DeliverText(RADSEL_RADIATOR_BLOCKS, path);
    case LumoDWGDefsNames::ventile:
        return DeliverText(RADSEL_VALVE_BLOCKS, path);
    }
    return false;
}

bool lmGetHKBlock(CString& block)
{
    return DeliverText(RADSEL_LAST_BLOCK, block);
}

void lmSetHKBlock(const CString& block)
{
    const radsel_host& host = Host();
    if (host.keep_block == nullptr ||
        !Succeeded("keep_block", host.keep_block(host.user, Utf8FromWide(block).c_str()))) {
        SetText(RADSEL_LAST_BLOCK, block);
    }
}

bool lmGetGlobalSuperUser(bool& superUser)
{
    return DeliverFlag(RADSEL_SUPER_USER, superUser) ||
           host_defaults::lmGetGlobalSuperUser(superUser);
}

bool lmGetAllowLumoSkin(bool& allow)
{
    return DeliverFlag(RADSEL_ALLOW_SKIN, allow) || host_defaults::lmGetAllowLumoSkin(allow);
}

bool lmGetLumoSkinColor(LumoSkinType type, unsigned long& color)
{
    const int setting = RADSEL_SKIN_BACKGROUND + static_cast<int>(type);
    const auto value = AskNumber(static_cast<radsel_number_setting>(setting));
    if (value) {
        color = static_cast<unsigned long>(*value);
    }
    return value.has_value();
}

// Asked ahead of every button of a dialog, so that a failure would leave the user no way out.
bool lmGetAllowEnterAsTab(bool& allow)
{
    try {
        if (DeliverFlag(RADSEL_ENTER_AS_TAB, allow)) {
            return true;
        }
    } catch (const CHostFailure&) {
        allow = false;
    }
    return host_defaults::lmGetAllowEnterAsTab(allow);
}

bool lmGetCurrentWinposFile(CString& name)
{
    return DeliverText(RADSEL_PLACEMENT_FILE, name) || host_defaults::lmGetCurrentWinposFile(name);
}

bool lmGetUseVistaBanner(bool& use)
{
    return DeliverFlag(RADSEL_BANNER, use) || host_defaults::lmGetUseVistaBanner(use);
}

bool lmGetProductLongName(CString& name)
{
    return DeliverText(RADSEL_PROGRAM_NAME, name) || host_defaults::lmGetProductLongName(name);
}

bool configGetWorkPathServer(CString& path)
{
    return DeliverText(RADSEL_SHARED_FOLDER, path);
}

bool configGetWorkPathLocal(CString& path)
{
    return DeliverText(RADSEL_LOCAL_FOLDER, path);
}

int lmGetGewerkColor(TgaGewerk gewerk)
{
    const int fallback = host_defaults::lmGetGewerkColor(gewerk);
    switch (gewerk) {
    case kGewerkVorlauf:
        return AskNumber(RADSEL_FLOW_COLOR).value_or(fallback);
    case kGewerkRuecklauf:
        return AskNumber(RADSEL_RETURN_COLOR).value_or(fallback);
    default:
        return fallback;
    }
}
