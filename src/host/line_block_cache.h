#pragma once

#include "host/api.h"
#include "host/host_prefs.h"
#include "platform/line_block.h"
#include "platform/text.h"

#include <memory>

/// What a host's cache of lines may be besides a CSettingsCache: one that keeps a file as a block
/// and lends it out. The lines of a large catalogue are then in memory once and narrow, instead of
/// once in the cache, once in the module, and on the way between them as an array of wide texts.
///
/// The module asks the host for it by RadselLineBlocks(). A cache that is none gets and gives
/// arrays. Both classes tell of the same entries.
class HOST_API CLineBlockCache
{
public:
    virtual ~CLineBlockCache() = default;

    /// The lines held for the path, whichever way they came; null without an entry. Good for as
    /// long as the caller wants them, whatever happens to the entry.
    virtual std::shared_ptr<const CLineBlock> GetCacheBlock(const CString& path) const = 0;

    /// Holds the lines under the path, in place of what was held there and without regard to
    /// changes of project, and returns what GetCacheBlock() gives from now on. The block is the
    /// host's: what frees it is code of the host, which outlives the module.
    virtual std::shared_ptr<const CLineBlock> AddBlockToCache(const CString& path,
                                                              CLineBlock lines) = 0;
};

/// The cache, which lmGetCacheObject() has given, as one that lends blocks; null if it is none, as
/// where a host has a cache of its own beside functions of another's. Optional: a host without this
/// function has arrays.
extern "C" HOST_OPTIONAL HOST_API CLineBlockCache* RadselLineBlocks(CSettingsCache* cache);
