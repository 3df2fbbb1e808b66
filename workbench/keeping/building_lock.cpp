#include "workbench/keeping/building_lock.h"

#include "platform/descriptor.h"
#include "platform/file_bytes.h"
#include "platform/lock_file.h"
#include "platform/replacement_steps.h"
#include "platform/user_name.h"
#include "workbench/building/json_fields.h"
#include "workbench/building/json_writer.h"
#include "workbench/keeping/file_identity.h"
#include "workbench/keeping/json_time.h"
#include "workbench/toolkit/qt_text.h"

#include <QSysInfo>

#include <cerrno>
#include <ctime>
#include <string>

namespace workbench {

namespace {

constexpr int kVersion = 1;

/// Programs that open and close the same building at the same moment get out of each other's way.
constexpr int kMostTries = 100;

/// A program that has not touched its lock for so long has ended: some refreshments late.
constexpr std::chrono::seconds kStaleAfter{300};

/// No name of a user or a machine is that long.
constexpr std::int64_t kLargestLock = 4096;

CString ThisMachine()
{
    return FromQt(QSysInfo::machineHostName());
}

std::string FormatOwn()
{
    CJsonWriter writer;
    writer.BeginObject(nullptr);
    writer.Number("version", kVersion);
    writer.Text("user", UserName());
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
    const std::int64_t length = LengthOfDescriptor(descriptor);
    std::string bytes;
    if (length < 0 || length > kLargestLock || !ReadAll(descriptor, bytes)) {
        return CBuildingUser();
    }
    return bytes.empty() ? std::nullopt : std::optional(Parse(bytes));
}

bool WasTouchedLately(int descriptor)
{
    const auto since = TimeSinceTouched(descriptor);
    return since && *since < kStaleAfter;
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
    if (SetLengthOfDescriptor(descriptor, 0) && SeekDescriptor(descriptor, 0) == 0) {
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
    m_path = file.parent_path() / ".";
    m_path += file.filename();
    m_path += ".radsel-lock";
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
        if (IsStillAt(m_descriptor, m_path)) {
            RemoveFile(m_path);
        }
        CloseDescriptor(m_descriptor);
    }
}

/// False if the file has to be opened anew.
bool CBuildingLock::Try()
{
    bool writable = false;
    const int descriptor = OpenLockFile(m_path, writable);
    if (descriptor < 0) {
        m_error = errno;
        return true;
    }
    const LockAnswer lock = TakeLock(descriptor);
    const bool refused = lock == LockAnswer::held;
    if (!refused && !IsStillAt(descriptor, m_path)) {
        CloseDescriptor(descriptor);
        return false;
    }
    const auto user = ReadUser(descriptor);
    if (refused || MayBeHeld(descriptor, lock == LockAnswer::taken, user)) {
        m_other = user.value_or(CBuildingUser());
        CloseDescriptor(descriptor);
        return true;
    }
    if (!writable && RemoveFile(m_path)) {
        CloseDescriptor(descriptor);
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
        TouchDescriptor(m_descriptor);
    }
}

} // namespace workbench
