#pragma once

#include "host/api.h"
#include "platform/array.h"
#include "platform/text.h"

/// HostPrefs: the host's settings, and the constructors, assignments and archive forms of the
/// records in frame/handover.h and frame/ventil_kv.h.

/// Folder of the radiator catalogues, one sub-folder a manufacturer.
HOST_API CString GetHKDir();

/// Folder of the valve catalogues, one sub-folder a manufacturer. `projectCopy` asks for the copies
/// that a project may carry of its own; the module passes false.
HOST_API CString GetVEDir(bool projectCopy);

/// Unit code of the drawing: 1 metre, 100 centimetre, 1000 millimetre.
HOST_API void lmGetDimension2(int& code);

/// Unit code that the user chose for what is shown.
HOST_API int lmGetDimensionUsr();

/// The lines of text files by path, for the life of the process: a file that is in here is not read
/// from disk again, even if it has changed there.
class HOST_API CSettingsCache
{
public:
    virtual ~CSettingsCache();

    virtual bool IsFileInCache(const CString& path) const = 0;

    /// Replaces `lines` by the lines held for the path; without an entry `lines` is left empty.
    virtual void GetCacheArray(const CString& path, CStringArray& lines) const = 0;

    /// Holds the lines under the path, in place of what was held there. The flag asks for the entry
    /// to be given up at the next change of project; the module passes false.
    virtual void AddFileToCache(const CString& path, const CStringArray& lines,
                                bool untilProjectChange) = 0;
};

/// The one cache of the process. Owned by HostPrefs.
HOST_API CSettingsCache* lmGetCacheObject();
