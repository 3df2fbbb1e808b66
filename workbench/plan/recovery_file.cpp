#include "workbench/plan/recovery_file.h"

#include "platform/exception.h"
#include "platform/format.h"
#include "platform/path.h"
#include "platform/whole_file.h"
#include "workbench/building/building_json.h"
#include "workbench/building/json_fields.h"
#include "workbench/building/json_time.h"
#include "workbench/building/json_writer.h"

#include <cerrno>
#include <ctime>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace workbench {

namespace fs = std::filesystem;

namespace {

constexpr int kVersion = 1;

/// More programs than anyone runs at a time, and more crashes than anyone leaves alone.
constexpr int kMostFiles = 1000;

CString PathOf(const CString& folder, int number, const wchar_t* extension)
{
    const CString name = L"recupero-" + FormatInt(number) + extension;
    return TextFromPath(ResolvePath(JoinPath(folder, name)));
}

bool Exists(const CString& path)
{
    std::error_code error;
    return fs::exists(ResolvePath(path), error);
}

/// A descriptor that holds the lock of the file; below 0 if another program holds it.
int Lock(const CString& path)
{
    const int descriptor = open(ResolvePath(path).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (descriptor < 0) {
        throw CFileException::FromErrno(errno, path);
    }
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        return descriptor;
    }
    const int error = errno;
    close(descriptor);
    if (error != EWOULDBLOCK) {
        throw CFileException::FromErrno(error, path);
    }
    return -1;
}

CRecovery ReadRecovery(const CString& path)
{
    CJsonFields fields = ReadJsonFile(path);
    fields.Integer("version", kVersion, kVersion);
    CRecovery recovery;
    recovery.strPath = fields.ForeignText("path");
    recovery.nTime = ReadTime(fields, "time");
    recovery.building = ReadBuilding(fields.Object("building"));
    fields.RefuseUnknown();
    return recovery;
}

std::string FormatRecovery(const CString& path, const CBuilding& building)
{
    CJsonWriter writer;
    writer.BeginObject(nullptr);
    writer.Number("version", kVersion);
    writer.Text("path", path);
    WriteTime(writer, "time", std::time(nullptr));
    WriteBuilding(writer, "building", building);
    writer.End();
    return writer.Take();
}

} // namespace

CRecoveryFile::CRecoveryFile(const CString& folder)
{
    std::error_code error;
    fs::create_directories(ResolvePath(folder), error);
    if (error) {
        throw CFileException::FromErrno(error.value(), folder);
    }
    for (int number = 1; number <= kMostFiles; ++number) {
        if (Exists(PathOf(folder, number, L".json")) && Take(folder, number)) {
            return;
        }
    }
    for (int number = 1; number <= kMostFiles; ++number) {
        if (Take(folder, number)) {
            return;
        }
    }
    throw CFileException::FromErrno(EAGAIN, folder);
}

CRecoveryFile::~CRecoveryFile()
{
    close(m_lock);
}

bool CRecoveryFile::Take(const CString& folder, int number)
{
    m_lock = Lock(PathOf(folder, number, L".lock"));
    m_strPath = PathOf(folder, number, L".json");
    return m_lock >= 0;
}

std::optional<CRecovery> CRecoveryFile::Read() const
{
    if (!Exists(m_strPath)) {
        return std::nullopt;
    }
    try {
        return ReadRecovery(m_strPath);
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
    } while (Exists(aside));
    std::error_code error;
    fs::rename(ResolvePath(m_strPath), ResolvePath(aside), error);
    return error ? L"il file non si lascia spostare" : L"il file è conservato come " + aside;
}

void CRecoveryFile::Write(const CString& path, const CBuilding& building) const
{
    WriteWholeFile(m_strPath, FormatRecovery(path, building));
}

void CRecoveryFile::Remove() const
{
    std::error_code error;
    fs::remove(ResolvePath(m_strPath), error);
    if (error) {
        throw CFileException::FromErrno(error.value(), m_strPath);
    }
}

} // namespace workbench
