// What the host lends to dialogs: choices, help, floors.

#include "c_interface/host/host_table.h"
#include "host_defaults/answers.h"
#include "platform/encoding.h"

using namespace c_interface;

namespace {

/// A number that the host lets the user change; it stays unless he confirms. A host that knows no
/// such choice leaves it to the library's dialog.
template <class Callback>
bool LetChoose(const char* name, Callback callback, bool (&ownDialog)(int&), int& number)
{
    if (callback == nullptr) {
        return ownDialog(number);
    }
    int choice = number;
    const int code = callback(Host().user, &choice);
    if (Succeeded(name, code)) {
        number = choice;
        return true;
    }
    return code == RADSEL_NOTHING && ownDialog(number);
}

} // namespace

bool ShowTransDlg(int& alpha)
{
    return LetChoose("choose_opacity", Host().choose_opacity, host_defaults::ShowTransDlg, alpha);
}

bool GetColorDlg(int& index)
{
    return LetChoose("choose_color", Host().choose_color, host_defaults::GetColorDlg, index);
}

bool ShowBigLayerDlg(CDrawer* drawer, CString& layer, int& farbe)
{
    const radsel_host& host = Host();
    if (host.choose_layer == nullptr) {
        return host_defaults::ShowBigLayerDlg(drawer, layer, farbe);
    }
    int color = farbe;
    int code = RADSEL_OK;
    const auto choice = AskForText("choose_layer", layer, [&](char* buffer, std::size_t capacity) {
        return code = host.choose_layer(host.user, buffer, capacity, &color);
    });
    if (code == RADSEL_NOTHING) {
        return host_defaults::ShowBigLayerDlg(drawer, layer, farbe);
    }
    if (!choice || choice->empty()) {
        return false;
    }
    layer = *choice;
    farbe = color;
    return true;
}

void ShowPDF(unsigned dialogId, int /*art*/)
{
    const radsel_host& host = Host();
    if (host.show_help != nullptr) {
        Succeeded("show_help", host.show_help(host.user, static_cast<int>(dialogId)));
    }
}

CString CRoomTools::GetFloorName(const CString& raum)
{
    const radsel_host& host = Host();
    if (host.floor_of_room == nullptr) {
        return host_defaults::GetFloorName(raum);
    }
    const std::string room = Utf8FromWide(raum);
    const auto floor = AskForText("floor_of_room", {}, [&](char* buffer, std::size_t capacity) {
        return host.floor_of_room(host.user, room.c_str(), buffer, capacity);
    });
    return floor ? *floor : host_defaults::GetFloorName(raum);
}
