#pragma once

#include "platform/text.h"

namespace workbench {

/// Whether a character is one that controls a device instead of standing for something.
bool IsControl(wchar_t c);

/// Whether a character leaves nothing but room: a blank of any script, a tabulator, a line end.
bool IsBlank(wchar_t c);

/// The text with "?" for every control character, as nobody knows what a terminal or a program that
/// opens an export would do with it. Texts of catalogues may hold any.
CString Printable(CString text);

} // namespace workbench
