#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"
#include "platform/archive.h"
#include "platform/exception.h"
#include "platform/file.h"
#include "platform/path.h"
#include "reference_host/prefs/host_settings.h"

#include <filesystem>
#include <map>
#include <memory>
#include <system_error>

using namespace reference_host;

namespace {

constexpr wchar_t kStartName[] = L"Vdi6030Start.def";

/// Folder of the records, empty if there is none.
CString DefFolder()
{
    return GetHostSetting(kSettingDefFolder, ConfigurationFolder().value_or(CString()));
}

/// Lets `read` take what it needs out of a user's file; false if the file is missing or damaged.
template <class Read>
bool ReadFile(const CString& name, Read read)
{
    const CString folder = DefFolder();
    CFile file;
    if (folder.empty() || !file.Open(JoinPath(folder, name), CFile::modeRead)) {
        return false;
    }
    try {
        CArchive archive(file, CArchive::Mode::load);
        read(archive);
        return true;
    } catch (const CArchiveException&) {
        return false;
    } catch (const CFileException&) {
        return false;
    }
}

/// Replaces a user's file by what `write` puts into the archive, once that is whole.
template <class Write>
bool WriteFile(const CString& name, Write write)
{
    const CString folder = DefFolder();
    std::error_code error;
    std::filesystem::create_directories(ResolvePath(folder), error);
    CFile file;
    if (folder.empty() || error ||
        !file.Open(JoinPath(folder, name), CFile::modeCreate | CFile::modeWrite)) {
        return false;
    }
    try {
        CArchive archive(file, CArchive::Mode::store);
        write(archive);
        archive.Close();
        file.Close();
        return true;
    } catch (const CFileException&) {
        return false;
    }
}

} // namespace

CObject* ReadDefFile(const CRuntimeClass* klasse, const CString& name)
{
    static std::map<CString, std::unique_ptr<CObject>> objects;
    std::unique_ptr<CObject>& object = objects[name];
    object.reset();
    ReadFile(name, [&](CArchive& archive) { object = archive.ReadObject(*klasse); });
    return object.get();
}

bool WriteDefFile(CObject* object, const CRuntimeClass* klasse, const CString& name)
{
    return object != nullptr && &object->GetRuntimeClass() == klasse &&
           WriteFile(name, [object](CArchive& archive) { archive.WriteObject(object); });
}

VDI6030START* ReadDefFile_VDI6030START(bool /*projectCopy*/)
{
    static VDI6030START start;
    return ReadFile(kStartName, [](CArchive& archive) { start.Serialize(archive); }) ? &start
                                                                                     : nullptr;
}

bool WriteDefFile_VDI6030START(VDI6030START* start, bool /*projectCopy*/)
{
    return start != nullptr &&
           WriteFile(kStartName, [start](CArchive& archive) { start->Serialize(archive); });
}
