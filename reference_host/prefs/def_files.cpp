#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"
#include "platform/archive.h"
#include "platform/exception.h"
#include "platform/file.h"
#include "platform/file_limits.h"
#include "platform/file_lock.h"
#include "platform/path.h"
#include "reference_host/prefs/host_settings.h"
#include "reference_host/prefs/lent_start.h"
#include "reference_host/prefs/start_merge.h"

#include <cerrno>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <system_error>
#include <utility>

using namespace reference_host;

namespace {

constexpr wchar_t kStartName[] = L"Vdi6030Start.def";

/// What came of reading a user's file.
enum class Reading
{
    done,
    /// There is no such file, or what stands in it is damaged.
    nothing,
    /// What stands in it cannot be told for now.
    failed
};

/// Folder of the records, empty if there is none.
CString DefFolder()
{
    return GetHostSetting(kSettingDefFolder, ConfigurationFolder().value_or(CString()));
}

/// Lets `read` take what it needs out of a user's file.
template <class Read>
Reading ReadFile(const CString& name, Read read)
{
    const CString folder = DefFolder();
    if (!AreHostSettingsKnown()) {
        return Reading::failed;
    }
    CFile file;
    if (folder.empty()) {
        return Reading::nothing;
    }
    if (!file.Open(JoinPath(folder, name), CFile::modeRead)) {
        const int reason = file.GetOpenError();
        return reason == ENOENT || reason == ENOTDIR ? Reading::nothing : Reading::failed;
    }
    try {
        if (file.GetLength() > kLargestSettingsFile) {
            return Reading::nothing;
        }
        CArchive archive(file, CArchive::Mode::load);
        read(archive);
        return Reading::done;
    } catch (const CArchiveException&) {
        return Reading::nothing;
    } catch (const CFileException&) {
        return Reading::failed;
    }
}

/// Names of the files whose last reading failed. A record that was made up in their stead must not
/// replace them.
std::set<CString>& FailedReadings()
{
    static std::set<CString> names;
    return names;
}

/// Reads a file for the module, and remembers if that failed.
template <class Read>
Reading ReadForModule(const CString& name, Read read)
{
    const Reading reading = ReadFile(name, read);
    if (reading == Reading::failed) {
        FailedReadings().insert(name);
    } else {
        FailedReadings().erase(name);
    }
    return reading;
}

/// Replaces a user's file by what `write` puts into the archive, once that is whole.
template <class Write>
bool ReplaceFile(const CString& path, Write write)
{
    CFile file;
    if (!file.Open(path, CFile::modeCreate | CFile::modeWrite)) {
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

/// Path of a user's file that may be written to, its folder made; empty if it may not.
CString WritablePath(const CString& name)
{
    const CString folder = DefFolder();
    if (folder.empty() || !AreHostSettingsKnown() || FailedReadings().contains(name)) {
        return {};
    }
    std::error_code error;
    std::filesystem::create_directories(ResolvePath(folder), error);
    return error ? CString() : JoinPath(folder, name);
}

/// The start values as the module knows them, from its last reading or writing, nothing before:
/// what differs from them in a record that it stores was changed by the user.
std::optional<VDI6030START>& KnownStart()
{
    static std::optional<VDI6030START> known;
    return known;
}

/// The start values that this process shows in place of the stored ones, if it was lent any.
std::optional<VDI6030START>& LentStart()
{
    static std::optional<VDI6030START> lent;
    return lent;
}

/// Puts into `start` what another process has stored since and the user of this one has left alone.
/// False if that cannot be told.
bool TakeOver(VDI6030START& start)
{
    VDI6030START stored;
    const Reading reading =
        ReadFile(kStartName, [&](CArchive& archive) { stored.Serialize(archive); });
    const bool isKnown = reading == Reading::done || LentStart();
    if (isKnown && KnownStart()) {
        start = MergeStart(*KnownStart(), start, stored);
    }
    return reading != Reading::failed;
}

} // namespace

CObject* ReadDefFile(const CRuntimeClass* klasse, const CString& name)
{
    static std::map<CString, std::unique_ptr<CObject>> objects;
    std::unique_ptr<CObject>& object = objects[name];
    object.reset();
    ReadForModule(name, [&](CArchive& archive) { object = archive.ReadObject(*klasse); });
    return object.get();
}

bool WriteDefFile(CObject* object, const CRuntimeClass* klasse, const CString& name)
{
    if (object == nullptr || &object->GetRuntimeClass() != klasse) {
        return false;
    }
    const CString path = WritablePath(name);
    return !path.empty() &&
           ReplaceFile(path, [object](CArchive& archive) { archive.WriteObject(object); });
}

VDI6030START* ReadDefFile_VDI6030START(bool /*projectCopy*/)
{
    static VDI6030START start;
    if (LentStart()) {
        KnownStart() = start = *LentStart();
        return &start;
    }
    const Reading reading =
        ReadForModule(kStartName, [](CArchive& archive) { start.Serialize(archive); });
    KnownStart() = reading == Reading::done ? start : VDI6030START();
    return reading == Reading::done ? &start : nullptr;
}

bool WriteDefFile_VDI6030START(VDI6030START* start, bool /*projectCopy*/)
{
    if (start == nullptr) {
        return false;
    }
    if (LentStart()) {
        KnownStart() = std::exchange(*LentStart(), *start);
    }
    const CString path = WritablePath(kStartName);
    if (path.empty()) {
        return false;
    }
    const CFileLock lock(path);
    VDI6030START merged = *start;
    if (!TakeOver(merged) ||
        !ReplaceFile(path, [&merged](CArchive& archive) { merged.Serialize(archive); })) {
        return false;
    }
    KnownStart() = *start;
    return true;
}

namespace reference_host {

void LendStart(const VDI6030START& start)
{
    LentStart() = start;
}

std::optional<VDI6030START> GetLentStart()
{
    return LentStart();
}

void EndLentStart()
{
    LentStart().reset();
}

} // namespace reference_host
