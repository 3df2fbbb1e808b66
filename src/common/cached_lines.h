#pragma once

#include "platform/array.h"
#include "platform/text.h"

#include <cstdint>

/// Replaces `lines` by the lines of a text file, which is read once in the life of the process:
/// afterwards the host's settings cache answers, even if the file has changed. False if the file is
/// not in the cache and cannot be opened or has more bytes than `largest`; `lines` is then empty.
/// Exceptions of the file pass through, and nothing enters the cache.
bool ReadCachedLines(const CString& path, CStringArray& lines, std::uint64_t largest);
