// What the module keeps from one use to the next: the last layer, and the start values of the next
// radiator. Each is a file in the folder of the working place. A program that keeps such things in
// a database puts the bytes there.

#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"
#include "platform/archive.h"
#include "platform/encoding.h"
#include "platform/exception.h"
#include "settings.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <vector>

namespace {

constexpr wchar_t kStartName[] = L"radiator_start.def";

std::filesystem::path FileOf(const CString& name)
{
    return FolderSetting("workplace") / Utf8FromWide(name);
}

/// Calls `read` with the archive in the file; false if there is none or it is damaged.
template <class Read>
bool ReadStore(const CString& name, Read read)
{
    std::ifstream file(FileOf(name), std::ios::binary);
    if (!file) {
        return false;
    }
    CMemoryStream bytes(std::vector<std::uint8_t>(std::istreambuf_iterator<char>(file), {}));
    try {
        CArchive archive(bytes, CArchive::Mode::load);
        read(archive);
        return true;
    } catch (const CArchiveException&) {
        return false;
    }
}

/// Replaces the file by what `write` puts into the archive. It is written beside the old one and
/// then moved over it: whatever happens meanwhile, one of the two is whole.
template <class Write>
bool WriteStore(const CString& name, Write write)
{
    CMemoryStream bytes;
    CArchive archive(bytes, CArchive::Mode::store);
    write(archive);
    archive.Close();

    const std::filesystem::path file = FileOf(name);
    std::filesystem::path beside = file;
    beside += ".new";
    std::ofstream stream(beside, std::ios::binary);
    stream.write(reinterpret_cast<const char*>(bytes.GetBytes().data()),
                 static_cast<std::streamsize>(bytes.GetBytes().size()));
    stream.close();
    std::error_code error;
    if (stream) {
        std::filesystem::rename(beside, file, error);
    }
    return stream && !error;
}

} // namespace

CObject* ReadDefFile(const CRuntimeClass* klasse, const CString& name)
{
    // The object stays the host's until the same name is read again.
    static std::map<CString, std::unique_ptr<CObject>> objects;
    std::unique_ptr<CObject>& object = objects[name];
    object.reset();
    ReadStore(name, [&](CArchive& archive) { object = archive.ReadObject(*klasse); });
    return object.get();
}

bool WriteDefFile(CObject* object, const CRuntimeClass* /*klasse*/, const CString& name)
{
    return WriteStore(name, [object](CArchive& archive) { archive.WriteObject(object); });
}

VDI6030START* ReadDefFile_VDI6030START(bool /*projectCopy*/)
{
    static VDI6030START start;
    return ReadStore(kStartName, [](CArchive& archive) { start.Serialize(archive); }) ? &start
                                                                                      : nullptr;
}

bool WriteDefFile_VDI6030START(VDI6030START* start, bool /*projectCopy*/)
{
    return WriteStore(kStartName, [start](CArchive& archive) { start->Serialize(archive); });
}
