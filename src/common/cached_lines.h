#pragma once

#include "host/host_prefs.h"
#include "platform/line_block.h"
#include "platform/text.h"

#include <cstdint>
#include <memory>

/// The lines of a text file, which is read once in the life of the process: afterwards the host's
/// settings cache answers, even if the file has changed. Null if the file is not in the cache and
/// cannot be opened or has more bytes than `largest`. A cache that keeps blocks
/// (host/line_block_cache.h) gives the one that it has; any other is asked for an array. Exceptions
/// of the file pass through, and nothing enters the cache.
std::shared_ptr<const CLineBlock> ReadCachedLines(const CString& path, std::uint64_t largest,
                                                  CSettingsCache& cache = *lmGetCacheObject());
