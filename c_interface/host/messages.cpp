#include "c_interface/host/messages.h"

#include "c_interface/host/host_table.h"
#include "platform/encoding.h"
#include "platform/message.h"

#include <string>
#include <utility>

namespace c_interface {

namespace {

int IconNumber(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::information:
        return 1;
    case MessageIcon::warning:
        return 2;
    case MessageIcon::stop:
        return 3;
    case MessageIcon::none:
        break;
    }
    return 0;
}

/// What shows messages where the host does not.
MessageHandler& Before()
{
    static MessageHandler before;
    return before;
}

/// A message tells of a failure already; another one that cannot be told would lead nowhere.
void ShowThroughHost(const MessageBoxText& message)
{
    const radsel_host& host = Host();
    const std::string caption = Utf8FromWide(message.caption);
    const std::string text = Utf8FromWide(message.text);
    const int code =
        host.show_message(host.user, IconNumber(message.icon), caption.c_str(), text.c_str());
    if (code == RADSEL_NOTHING && Before()) {
        Before()(message);
    } else if (code != RADSEL_OK) {
        ForgetFailure();
        WriteMessage(message);
    }
}

} // namespace

void ShowMessagesThroughHost(bool throughHost)
{
    static bool isThroughHost = false;
    if (throughHost != isThroughHost) {
        Before() = SetMessageHandler(throughHost ? MessageHandler(ShowThroughHost) : Before());
        isThroughHost = throughHost;
    }
}

} // namespace c_interface
