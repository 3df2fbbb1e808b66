#include "platform/message.h"

#include "platform/encoding.h"

#include <iostream>
#include <utility>

namespace {

MessageHandler& CurrentHandler()
{
    static MessageHandler handler;
    return handler;
}

} // namespace

void ShowMessage(const MessageBoxText& message)
{
    if (const MessageHandler handler = CurrentHandler()) {
        handler(message);
    } else {
        WriteMessage(message);
    }
}

void WriteMessage(const MessageBoxText& message)
{
    std::string line = Utf8FromWide(message.text);
    if (!message.caption.empty()) {
        line = Utf8FromWide(message.caption) + ": " + line;
    }
    std::cerr << line << '\n';
}

MessageHandler SetMessageHandler(MessageHandler handler)
{
    return std::exchange(CurrentHandler(), std::move(handler));
}
