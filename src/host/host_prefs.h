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

/// What a skin gives a colour to.
enum LumoSkinType
{
    skinHintergrund = 0,
    skinSchaltflaeche = 1,
    skinRahmen = 2,
    skinListe = 3,
    skinEingabe = 4
};

/// The preferences below deliver the host's default where the user has chosen nothing. Those that
/// return a bool return true, unless their own text says when not.

/// Whether dialogs are coloured with the skin instead of the system's colours. Default: no.
HOST_API bool lmGetAllowLumoSkin(bool& allow);

/// A colour of the skin as 0x00BBGGRR. False, with `color` left alone, if none is set.
HOST_API bool lmGetLumoSkinColor(LumoSkinType type, unsigned long& color);

/// Whether Enter moves to the next control instead of confirming the dialog. Default: no.
HOST_API bool lmGetAllowEnterAsTab(bool& allow);

/// Name, without folder, of the file that keeps the placement of windows. Default: "winpos.txt".
HOST_API bool lmGetCurrentWinposFile(CString& name);

/// Whether dialogs show the themed banner. Default: no.
HOST_API bool lmGetUseVistaBanner(bool& use);

/// Name of the program, for the banner of its dialogs. Default: "Workbench Termotecnica".
HOST_API bool lmGetProductLongName(CString& name);
