// What dialogs remember: archives that the host keeps, or a folder, or this process.

#include "c_interface/host/answers.h"
#include "c_interface/host/host_table.h"
#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"
#include "platform/archive.h"
#include "platform/encoding.h"
#include "platform/exception.h"
#include "platform/file_limits.h"
#include "platform/path.h"
#include "platform/whole_file.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

using namespace c_interface;

namespace {

constexpr wchar_t kStartName[] = L"Vdi6030Start.def";

using Bytes = std::vector<std::uint8_t>;

std::map<CString, Bytes>& KeptInProcess()
{
    static std::map<CString, Bytes> kept;
    return kept;
}

/// Names of what could not be read. A record that was made up in its stead must not replace it.
std::set<CString>& FailedReadings()
{
    static std::set<CString> names;
    return names;
}

std::optional<Bytes> ReadThroughHost(const CString& name)
{
    const radsel_host& host = Host();
    radsel_bytes answer;
    const std::string bytes = Utf8FromWide(name);
    if (!Succeeded("read_store", host.read_store(host.user, bytes.c_str(), &answer))) {
        return std::nullopt;
    }
    return std::move(answer.bytes);
}

std::optional<Bytes> ReadFromFolder(const CString& folder, const CString& name)
{
    try {
        const auto text = ReadWholeFile(JoinPath(folder, name), kLargestSettingsFile);
        if (!text) {
            return std::nullopt;
        }
        const auto bytes = BytesOf(*text);
        return Bytes(bytes.begin(), bytes.end());
    } catch (const CFileException& error) {
        if (error.GetCause() == CFileException::Cause::fileNotFound ||
            error.GetCause() == CFileException::Cause::badPath) {
            return std::nullopt;
        }
        throw;
    }
}

std::optional<Bytes> ReadStore(const CString& name)
{
    FailedReadings().erase(name);
    try {
        if (Host().read_store != nullptr) {
            if (auto bytes = ReadThroughHost(name)) {
                return bytes;
            }
        }
        if (const auto folder = AskText(RADSEL_STORE_FOLDER)) {
            return ReadFromFolder(*folder, name);
        }
    } catch (const CException&) {
        FailedReadings().insert(name);
        return std::nullopt;
    }
    const auto found = KeptInProcess().find(name);
    return found == KeptInProcess().end() ? std::nullopt : std::optional(found->second);
}

bool WriteStore(const CString& name, const Bytes& bytes)
{
    if (FailedReadings().contains(name)) {
        return false;
    }
    const radsel_host& host = Host();
    try {
        if (host.write_store != nullptr &&
            Succeeded("write_store", host.write_store(host.user, Utf8FromWide(name).c_str(),
                                                      bytes.data(), bytes.size()))) {
            return true;
        }
        if (const auto folder = AskText(RADSEL_STORE_FOLDER)) {
            WriteWholeFile(JoinPath(*folder, name),
                           {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
            return true;
        }
    } catch (const CException&) {
        return false;
    }
    KeptInProcess()[name] = bytes;
    return true;
}

/// Lets `take` read the archive of that name. False if there is none, or it is damaged.
template <class Take>
bool ReadArchive(const CString& name, Take take)
{
    std::optional<Bytes> bytes = ReadStore(name);
    if (!bytes) {
        return false;
    }
    try {
        CMemoryStream stream(std::move(*bytes));
        CArchive archive(stream, CArchive::Mode::load);
        take(archive);
        return true;
    } catch (const CArchiveException&) {
        return false;
    }
}

template <class Put>
bool WriteArchive(const CString& name, Put put)
{
    CMemoryStream stream;
    CArchive archive(stream, CArchive::Mode::store);
    put(archive);
    archive.Close();
    return WriteStore(name, stream.GetBytes());
}

} // namespace

CObject* ReadDefFile(const CRuntimeClass* klasse, const CString& name)
{
    static std::map<CString, std::unique_ptr<CObject>> objects;
    std::unique_ptr<CObject>& object = objects[name];
    object.reset();
    ReadArchive(name, [&](CArchive& archive) { object = archive.ReadObject(*klasse); });
    return object.get();
}

bool WriteDefFile(CObject* object, const CRuntimeClass* klasse, const CString& name)
{
    return object != nullptr && &object->GetRuntimeClass() == klasse &&
           WriteArchive(name, [&](CArchive& archive) { archive.WriteObject(object); });
}

VDI6030START* ReadDefFile_VDI6030START(bool /*projectCopy*/)
{
    static VDI6030START start;
    const bool isRead =
        ReadArchive(kStartName, [](CArchive& archive) { start.Serialize(archive); });
    return isRead ? &start : nullptr;
}

bool WriteDefFile_VDI6030START(VDI6030START* start, bool /*projectCopy*/)
{
    return start != nullptr &&
           WriteArchive(kStartName, [&](CArchive& archive) { start->Serialize(archive); });
}
