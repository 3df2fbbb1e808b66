#include "workbench/keeping/recovery_file.h"

#include "platform/descriptor.h"
#include "platform/exception.h"
#include "platform/format.h"
#include "platform/lock_file.h"
#include "platform/number_scan.h"
#include "platform/path.h"
#include "platform/system_error.h"
#include "workbench/building/building_json.h"
#include "workbench/building/json_fields.h"
#include "workbench/building/json_writer.h"
#include "workbench/keeping/json_time.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <system_error>
#include <utility>

namespace workbench {

namespace fs = std::filesystem;

namespace {

constexpr int kRecoveryVersion = 1;

/// More programs than anyone runs at a time, and more crashes than anyone leaves alone.
constexpr int kMostFiles = 1000;

constexpr const wchar_t* kName = L"recupero-";
constexpr const wchar_t* kWork = L".json";
constexpr const wchar_t* kLock = L".lock";

CString PathOf(const CString& folder, int number, const wchar_t* extension)
{
    return TextFromPath(ResolvePath(JoinPath(folder, kName + FormatInt(number) + extension)));
}

/// Something that cannot be looked at may be work all the same.
bool IsMissing(const CString& path)
{
    std::error_code error;
    return fs::symlink_status(ResolvePath(path), error).type() == fs::file_type::not_found;
}

/// 0 for a file that holds no work.
int NumberOf(const fs::path& file)
{
    const CString name = TextFromPath(file.filename());
    const int number = name.starts_with(kName) ? _wtoi(name.c_str() + CString(kName).size()) : 0;
    return name == kName + FormatInt(number) + kWork ? number : 0;
}

/// In the order in which they were begun.
std::vector<int> NumbersIn(const CString& folder)
{
    std::vector<int> numbers;
    std::error_code error;
    fs::directory_iterator entry(ResolvePath(folder), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (const int number = NumberOf(entry->path()); number > 0) {
            numbers.push_back(number);
        }
    }
    if (error) {
        throw CFileException::FromErrno(ErrnoOf(error), folder);
    }
    std::ranges::sort(numbers);
    return numbers;
}

/// A descriptor that holds the lock of the file; below 0 if another program holds it.
int Lock(const CString& path)
{
    const int descriptor = OpenOwnLockFile(ResolvePath(path));
    if (descriptor < 0) {
        throw CFileException::FromErrno(errno, path);
    }
    const LockAnswer lock = TakeLock(descriptor);
    if (lock == LockAnswer::taken) {
        return descriptor;
    }
    const int error = errno;
    CloseDescriptor(descriptor);
    if (lock == LockAnswer::none) {
        throw CFileException::FromErrno(error, path);
    }
    return -1;
}

CRecovery ParseRecovery(const std::string& bytes, const CString& path)
{
    CJsonFields fields = ParseJson(bytes, path);
    fields.Integer("version", kRecoveryVersion, kRecoveryVersion);
    CRecovery recovery;
    recovery.strPath = fields.ForeignText("path");
    recovery.strFingerprint = fields.ForeignTextOr("saved");
    recovery.nTime = ReadTime(fields, "time");
    recovery.building = ReadBuilding(fields.Object("building"));
    fields.RefuseUnknown();
    return recovery;
}

std::string FormatRecovery(const CString& path, const CString& fingerprint,
                           const CBuilding& building)
{
    CJsonWriter writer;
    writer.BeginObject(nullptr);
    writer.Number("version", kRecoveryVersion);
    writer.Text("path", path);
    if (!fingerprint.empty()) {
        writer.Text("saved", fingerprint);
    }
    WriteTime(writer, "time", std::time(nullptr));
    WriteBuilding(writer, "building", building);
    writer.End();
    return writer.Take();
}

} // namespace

CRecoveryFile::CRecoveryFile(const CString& folder) : m_strFolder(folder)
{
    std::error_code error;
    fs::create_directories(ResolvePath(folder), error);
    if (error) {
        throw CFileException::FromErrno(ErrnoOf(error), folder);
    }
    for (int number = 1; number <= kMostFiles; ++number) {
        if (Take(number)) {
            if (IsMissing(m_strPath)) {
                return;
            }
            CloseDescriptor(m_lock);
        }
    }
    throw CFileException::FromErrno(EAGAIN, folder);
}

CRecoveryFile::CRecoveryFile(const CString& folder, int number) : m_strFolder(folder)
{
    Take(number);
}

CRecoveryFile::~CRecoveryFile()
{
    if (m_lock >= 0) {
        CloseDescriptor(m_lock);
    }
}

bool CRecoveryFile::Take(int number)
{
    m_lock = Lock(PathOf(m_strFolder, number, kLock));
    m_strPath = PathOf(m_strFolder, number, kWork);
    return m_lock >= 0;
}

std::vector<std::unique_ptr<CRecoveryFile>> CRecoveryFile::TakeLeft() const
{
    std::vector<std::unique_ptr<CRecoveryFile>> left;
    for (const int number : NumbersIn(m_strFolder)) {
        std::unique_ptr<CRecoveryFile> file(new CRecoveryFile(m_strFolder, number));
        if (file->m_lock >= 0) {
            left.push_back(std::move(file));
        }
    }
    return left;
}

std::optional<CRecovery> CRecoveryFile::Read() const
{
    std::string bytes;
    try {
        bytes = ReadJsonBytes(m_strPath);
    } catch (const CFileException& error) {
        if (error.GetOsError() == ENOENT) {
            return std::nullopt;
        }
        throw;
    }
    try {
        return ParseRecovery(bytes, m_strPath);
    } catch (const CContentException& error) {
        throw CContentException(error.GetErrorMessage() + L"\n" + SetAside());
    }
}

/// Tells where the file is now.
CString CRecoveryFile::SetAside() const
{
    CString aside;
    int number = 0;
    do {
        aside = m_strPath + L".illeggibile-" + FormatInt(++number);
    } while (!IsMissing(aside));
    std::error_code error;
    fs::rename(ResolvePath(m_strPath), ResolvePath(aside), error);
    return error ? L"il file non si lascia spostare" : L"il file è conservato come " + aside;
}

void CRecoveryFile::Write(const CString& path, const CString& fingerprint,
                          const CBuilding& building) const
{
    WriteJsonBytes(m_strPath, FormatRecovery(path, fingerprint, building));
}

void CRecoveryFile::Remove() const
{
    std::error_code error;
    fs::remove(ResolvePath(m_strPath), error);
    if (error) {
        throw CFileException::FromErrno(ErrnoOf(error), m_strPath);
    }
}

} // namespace workbench
