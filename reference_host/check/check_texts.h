#pragma once

#include "platform/text.h"

#include <string_view>

namespace reference_host {

/// "Record 700, campo 4 (altezza): ", as the reader of catalogues says where a fault is.
CString FieldPlace(const wchar_t* record, int field, const wchar_t* name);

/// A name as people read it: without case, and without blanks at its ends.
CString ReadName(const CString& name);

/// Line, from 1, of the first accented letter that is written in UTF-8, which is read as two
/// others; 0 if there is none.
int FindUtf8Line(std::string_view bytes);

} // namespace reference_host
