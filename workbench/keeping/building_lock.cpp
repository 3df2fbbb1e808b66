#include "workbench/keeping/building_lock.h"

#include "platform/encoding.h"
#include "platform/file_bytes.h"
#include "workbench/building/json_fields.h"
#include "workbench/building/json_writer.h"
#include "workbench/keeping/file_identity.h"
#include "workbench/keeping/json_time.h"
#include "workbench/toolkit/qt_text.h"

#include <QSysInfo>

#include <cerrno>
#include <ctime>
#include <string>

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace workbench {

namespace {

constexpr int kVersion = 1;

/// Programs that open and close the same building at the same moment get out of each other's way.
constexpr int kMostTries = 100;

/// A program that has not touched its lock for so many seconds has ended: some refreshments late.
constexpr std::time_t kStaleAfter = 300;

/// No name of a user or a machine is that long.
constexpr off_t kLargestLock = 4096;

CString ThisMachine()
{
    return FromQt(QSysInfo::machineHostName());
}

CString ThisUser()
{
    const passwd* entry = getpwuid(geteuid());
    return entry ? WideFromUtf8(entry->pw_name) : CString();
}

std::string FormatOwn()
{
    CJsonWriter writer;
    writer.BeginObject(nullptr);
    writer.Number("version", kVersion);
    writer.Text("user", ThisUser());
    writer.Text("machine", ThisMachine());
    WriteTime(writer, "time", std::time(nullptr));
    writer.End();
    return writer.Take();
}

CBuildingUser Parse(const std::string& bytes)
{
    try {
        CJsonFields fields = ParseJson(bytes, {});
        CBuildingUser user;
        user.strUser = fields.ForeignText("user");
        user.strMachine = fields.ForeignText("machine");
        user.nTime = ReadTime(fields, "time");
        return user;
    } catch (const CContentException&) {
        return {};
    }
}

/// Nothing for a file that nobody has written to yet.
std::optional<CBuildingUser> ReadUser(int descriptor)
{
    struct stat status = {};
    std::string bytes;
    if (fstat(descriptor, &status) != 0 || status.st_size > kLargestLock ||
        !ReadAll(descriptor, bytes)) {
        return CBuildingUser();
    }
    return bytes.empty() ? std::nullopt : std::optional(Parse(bytes));
}

/// Another user's file can often be read only.
int OpenLock(const std::filesystem::path& path, bool& writable)
{
    constexpr int kFlags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const int descriptor = open(path.c_str(), O_RDWR | O_CREAT | kFlags, 0666);
    writable = descriptor >= 0;
    if (writable || errno != EACCES) {
        return descriptor;
    }
    const int readable = open(path.c_str(), O_RDONLY | kFlags);
    if (readable < 0 && errno == ENOENT) {
        // There is no lock to be read, and none may be made.
        errno = EACCES;
    }
    return readable;
}

/// False if the file was taken away, or another one took its place, after it was opened.
bool IsStillThere(int descriptor, const std::filesystem::path& path)
{
    struct stat opened = {};
    struct stat named = {};
    return fstat(descriptor, &opened) == 0 && lstat(path.c_str(), &named) == 0 &&
           opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

bool WasTouchedLately(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && std::time(nullptr) - status.st_mtime < kStaleAfter;
}

/// Without locks, or where those of other machines do not show, the time alone tells.
bool MayBeHeld(int descriptor, bool locked, const std::optional<CBuildingUser>& user)
{
    const bool isForeign = user && !user->strMachine.empty() && user->strMachine != ThisMachine();
    return user && (isForeign || !locked) && WasTouchedLately(descriptor);
}

/// A lock without a name on it is one as well.
void WriteOwn(int descriptor)
{
    const std::string own = FormatOwn();
    if (ftruncate(descriptor, 0) == 0 && lseek(descriptor, 0, SEEK_SET) == 0) {
        static_cast<void>(WriteAll(descriptor, own.data(), own.size()));
    }
}

CString Describe(const CBuildingUser& user)
{
    CString text = user.strUser.empty() ? L"da un altro programma" : L"da " + user.strUser;
    if (!user.strMachine.empty()) {
        text += L" su " + user.strMachine;
    }
    return user.nTime == 0 ? text : text + L" dal " + DescribeTime(user.nTime);
}

} // namespace

CBuildingLock::CBuildingLock(const CString& building) : m_strBuilding(building)
{
    const std::filesystem::path file = CanonicalPath(building);
    m_path = file.parent_path() / ("." + file.filename().native() + ".radsel-lock");
    for (int i = 0; i < kMostTries; ++i) {
        if (Try()) {
            return;
        }
    }
    m_error = EAGAIN;
}

CBuildingLock::~CBuildingLock()
{
    if (IsMine()) {
        if (IsStillThere(m_descriptor, m_path)) {
            unlink(m_path.c_str());
        }
        close(m_descriptor);
    }
}

/// False if the file has to be opened anew.
bool CBuildingLock::Try()
{
    bool writable = false;
    const int descriptor = OpenLock(m_path, writable);
    if (descriptor < 0) {
        m_error = errno;
        return true;
    }
    const bool locked = flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    const bool refused = !locked && errno == EWOULDBLOCK;
    if (!refused && !IsStillThere(descriptor, m_path)) {
        close(descriptor);
        return false;
    }
    const auto user = ReadUser(descriptor);
    if (refused || MayBeHeld(descriptor, locked, user)) {
        m_other = user.value_or(CBuildingUser());
        close(descriptor);
        return true;
    }
    if (!writable && unlink(m_path.c_str()) == 0) {
        close(descriptor);
        return false;
    }
    WriteOwn(descriptor);
    m_descriptor = descriptor;
    return true;
}

CString CBuildingLock::GetMessage() const
{
    if (m_other) {
        return L"Il file " + m_strBuilding + L" è aperto " + Describe(*m_other) + L".";
    }
    const bool isForeignFolder = m_error == EACCES || m_error == EPERM || m_error == EROFS;
    if (m_error == 0 || isForeignFolder) {
        return {};
    }
    return L"Il file non si lascia segnare come aperto, altri programmi non se ne accorgono: " +
           CFileException::FromErrno(m_error, m_strBuilding).GetErrorMessage();
}

void CBuildingLock::Refresh() const
{
    if (IsMine()) {
        futimens(m_descriptor, nullptr);
    }
}

} // namespace workbench
