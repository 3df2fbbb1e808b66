#pragma once

#include "c_interface/radsel_c.h"
#include "c_interface/records/call_fault.h"
#include "platform/text.h"

#include <functional>
#include <optional>

namespace c_interface {

/// The host of this process as the caller has told it: his table and his settings.

/// The table; all entries null if there is none.
const radsel_host& Host();

/// Makes the table the host, null for none.
void SetHost(const radsel_host* table);

/// True for RADSEL_OK, false for RADSEL_NOTHING and RADSEL_CANCELLED; any other code of a callback
/// raises CHostFailure with what the callback has told of it.
bool Succeeded(const char* callback, int code);

/// What the callback at work tells of its failure.
void NoteFailure(CReason reason);
void ForgetFailure();

/// The text that a callback makes of `before` in the buffer it is given; nothing if it succeeds
/// with none. One that does not end within the buffer is a failure.
using TextCallback = std::function<int(char* buffer, std::size_t capacity)>;
std::optional<CString> AskForText(const char* name, const CString& before,
                                  const TextCallback& callback);

/// A setting: from the callback if there is one and it knows, else as it was set, else nothing.
std::optional<CString> AskText(radsel_text_setting setting);
std::optional<int> AskNumber(radsel_number_setting setting);

/// Sets one, or gives it up. False if there is no setting of that number.
bool SetText(int setting, const std::optional<CString>& text);
bool SetNumber(int setting, const std::optional<int>& value);

} // namespace c_interface
