#pragma once

#include "platform/array.h"
#include "platform/export.h"
#include "platform/text.h"

class CObject;
class VDI6030START;
struct CRuntimeClass;

/// HostPrefs: the host's settings, the records that are kept from one use to the next, and the
/// constructors, assignments and archive forms of the records in frame/.

/// Folder of the radiator catalogues, one sub-folder a manufacturer. `projectCopy` asks for the
/// copies that a project may carry of its own; the module passes false.
HOST_API CString GetHKDir(bool projectCopy);

/// The same for the valve catalogues.
HOST_API CString GetVEDir(bool projectCopy);

/// Unit code of the drawing: 1 metre, 100 centimetre, 1000 millimetre.
HOST_API void lmGetDimension2(int& code);

/// Unit code that the user chose for what is shown.
HOST_API int lmGetDimensionUsr();

/// Layer on which radiators are drawn unless the user chose another. "$d" in it stands for the name
/// of the floor.
HOST_API void lmGetHKLayer(CString& layer);

/// Colour index of that layer.
HOST_API void lmGetHKLayerColor(int& farbe);

/// Delivers whether the host manages layers by itself; `vorgabe` if the user has not decided.
HOST_API void lmGetAutoLayerManagement(bool& automatisch, bool vorgabe);

/// The collections of drawing blocks.
enum class LumoDWGDefsNames : int
{
    heizkoerper = 2,
    ventile = 8
};

/// Delivers where the blocks of a collection are. False, with `path` left alone, if the host has no
/// such collection.
HOST_API bool lmGetDWGDefPath(const LumoDWGDefsNames& name, CString& path);

/// Delivers the block that was used last for a radiator. False, with `block` left alone, if none
/// was.
HOST_API bool lmGetHKBlock(CString& block);

/// Keeps the block as the one used last; a name that cannot be kept is dropped without a word.
HOST_API void lmSetHKBlock(const CString& block);

/// Delivers whether the user may change what the whole office shares. False, with the flag left
/// alone, if the host does not know.
HOST_API bool lmGetGlobalSuperUser(bool& superUser);

/// Reads an object of exactly this class from the user's file of that name (without a folder). Null
/// if there is no file, if it is damaged, of a later version, or holds another class.
///
/// The object belongs to HostPrefs: the caller copies what it needs and never frees it. It holds
/// until a file of the same name is read the next time.
HOST_API CObject* ReadDefFile(const CRuntimeClass* klasse, const CString& name);

/// Writes an object of exactly this class to the user's file of that name, in place of what is
/// there, whatever it is. False if that fails, and then the old file is still whole; a host may
/// refuse as well as long as its last reading of the file failed, since what the module stores then
/// does not come from there.
HOST_API bool WriteDefFile(CObject* object, const CRuntimeClass* klasse, const CString& name);

/// The start values of the radiator selection, null if none were stored or they cannot be read.
/// `projectCopy` asks for those that a project may carry of its own; the module passes false. The
/// record belongs to HostPrefs as above and holds until the next reading.
HOST_API VDI6030START* ReadDefFile_VDI6030START(bool projectCopy);

/// Stores them. What the module has not changed since it read them may stay as another process has
/// stored it meanwhile. False as above.
HOST_API bool WriteDefFile_VDI6030START(VDI6030START* start, bool projectCopy);

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

/// The preferences below are always delivered, and those that return a bool return true, unless
/// their own text says when not.

/// Whether dialogs are coloured with the skin instead of the system's colours.
HOST_API bool lmGetAllowLumoSkin(bool& allow);

/// A colour of the skin as 0x00BBGGRR. False, with `color` left alone, if none is set.
HOST_API bool lmGetLumoSkinColor(LumoSkinType type, unsigned long& color);

/// Whether Enter moves to the next control instead of confirming the dialog.
HOST_API bool lmGetAllowEnterAsTab(bool& allow);

/// Name, without folder, of the file that keeps the placement of windows.
HOST_API bool lmGetCurrentWinposFile(CString& name);

/// Whether dialogs show the themed banner.
HOST_API bool lmGetUseVistaBanner(bool& use);

/// Name of the program, for the banner of its dialogs.
HOST_API bool lmGetProductLongName(CString& name);
