#include "common/cached_lines.h"

#include "common/text_file.h"
#include "host/host_prefs.h"
#include "platform/file.h"

bool ReadCachedLines(const CString& path, CStringArray& lines, std::uint64_t largest)
{
    CSettingsCache& cache = *lmGetCacheObject();
    if (cache.IsFileInCache(path)) {
        cache.GetCacheArray(path, lines);
        return true;
    }

    lines.RemoveAll();
    CFile file;
    if (!file.Open(path, CFile::modeRead | CFile::shareDenyWrite) || file.GetLength() > largest) {
        return false;
    }
    ReadTextLines(file, lines, -1);
    file.Close();
    cache.AddFileToCache(path, lines, false);
    return true;
}
