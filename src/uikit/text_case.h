#pragma once

#include "platform/text.h"

/// The text in lower case by the toolkit's tables of the whole character set, each character by
/// itself, so that the length stays.
CString LowerCase(CString text);

/// Whether the toolkit's tables call the character a letter, of whatever alphabet. A sign such as
/// that of degrees is none.
bool IsLetter(wchar_t c);
