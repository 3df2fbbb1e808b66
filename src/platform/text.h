#pragma once

#include "platform/export.h"

#include <string>

/// Wide text of the module: a value, one code point per wchar_t, or UTF-16 where that has 16 bits.
/// Files convert at their border (encoding.h); nothing depends on the locale of the process.
using CString = std::wstring;

/// Lower-case form of one character. Covers ASCII, Latin-1, Latin Extended-A, Greek and Cyrillic,
/// which is what catalogues hold; any other character comes back as it is.
wchar_t ToLower(wchar_t c);

/// Lower-case form of a text, character by character.
CString ToLower(CString text);

/// True if both texts are equal once case is left aside.
bool EqualNoCase(const CString& a, const CString& b);

/// Replaces every `from` in `text` by `to`.
void ReplaceAll(CString& text, wchar_t from, wchar_t to);
