// What the host lends to dialogs: choices, help, floors.

#include "c_interface/host/host_table.h"
#include "host_defaults/answers.h"
#include "platform/encoding.h"

using namespace c_interface;

namespace {

/// A number that the host lets the user change; it stays unless he confirms.
template <class Callback>
bool LetChoose(const char* name, Callback callback, int& number)
{
    int choice = number;
    if (!Succeeded(name, callback(Host().user, &choice))) {
        return false;
    }
    number = choice;
    return true;
}

} // namespace

bool ShowTransDlg(int& alpha)
{
    const auto callback = Host().choose_opacity;
    return callback == nullptr ? host_defaults::ShowTransDlg(alpha)
                               : LetChoose("choose_opacity", callback, alpha);
}

bool GetColorDlg(int& index)
{
    const auto callback = Host().choose_color;
    return callback == nullptr ? host_defaults::GetColorDlg(index)
                               : LetChoose("choose_color", callback, index);
}

bool ShowBigLayerDlg(CDrawer* drawer, CString& layer, int& farbe)
{
    const radsel_host& host = Host();
    if (host.choose_layer == nullptr) {
        return host_defaults::ShowBigLayerDlg(drawer, layer, farbe);
    }
    int color = farbe;
    const auto choice = AskForText("choose_layer", layer, [&](char* buffer, std::size_t capacity) {
        return host.choose_layer(host.user, buffer, capacity, &color);
    });
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
    return AskForText("floor_of_room", {},
                      [&](char* buffer, std::size_t capacity) {
                          return host.floor_of_room(host.user, room.c_str(), buffer, capacity);
                      })
        .value_or(CString());
}
