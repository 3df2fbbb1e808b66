#pragma once

#include "platform/text.h"

#include <functional>

enum class MessageIcon
{
    none,
    information,
    warning,
    stop
};

/// What is shown to the user: a caption (empty for the program's own), a text, an icon.
struct MessageBoxText
{
    CString caption;
    CString text;
    MessageIcon icon = MessageIcon::none;
};

using MessageHandler = std::function<void(const MessageBoxText&)>;

/// Shows a message and returns when the user has answered. Without a handler the message goes to
/// standard error and the call returns at once, so that logic may report without knowing whether
/// there is a window.
void ShowMessage(const MessageBoxText& message);

/// Writes a message to standard error, for handlers that find nobody who could answer.
void WriteMessage(const MessageBoxText& message);

/// Makes `handler` the one that shows messages; an empty one stands for standard error. Returns the
/// handler that was in force.
MessageHandler SetMessageHandler(MessageHandler handler);
