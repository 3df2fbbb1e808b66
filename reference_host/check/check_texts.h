#pragma once

#include "platform/text.h"

#include <string_view>

namespace reference_host {

/// "Record 700, campo 4 (altezza): ", as the reader of catalogues says where a fault is.
CString FieldPlace(const wchar_t* record, int field, const wchar_t* name);

/// A name as people read it: without case, and without blanks at its ends.
CString ReadName(const CString& name);

/// What is wrong with a text in UTF-8 without a byte order mark.
inline constexpr wchar_t kIsUtf8[] =
    L"il testo è in UTF-8 e si legge come Windows 1252: le lettere accentate sono sbagliate";

/// True if a line that was read has an accented letter that is written so.
bool IsUtf8Line(const CString& line);

/// Line, from 1, of the first accented letter that is written in UTF-8, which is read as two
/// others; 0 if there is none.
int FindUtf8Line(std::string_view bytes);

} // namespace reference_host
