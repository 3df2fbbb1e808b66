#include "platform/replacement_steps.h"

#include "platform/descriptor.h"
#include "platform/windows/handle.h"

#include <array>
#include <cerrno>
#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>

namespace fs = std::filesystem;

namespace {

constexpr SECURITY_INFORMATION kRights = DACL_SECURITY_INFORMATION;
constexpr SECURITY_INFORMATION kOwner = OWNER_SECURITY_INFORMATION;

/// Owner or permissions of a file as the system hands them on; empty if it does not tell.
std::vector<unsigned char> SecurityOf(const fs::path& file, SECURITY_INFORMATION kind)
{
    DWORD size = 0;
    GetFileSecurityW(file.c_str(), kind, nullptr, 0, &size);
    std::vector<unsigned char> security(size);
    if (size == 0 || GetFileSecurityW(file.c_str(), kind, security.data(), size, &size) == 0) {
        security.clear();
    }
    return security;
}

bool SetSecurity(const fs::path& file, SECURITY_INFORMATION kind,
                 std::vector<unsigned char>& security)
{
    return SetFileSecurityW(file.c_str(), kind, security.data()) != 0;
}

/// Renaming as newer systems do it: over a file that others have open, who go on with the old one.
/// Headers often lack it.
constexpr auto kRename = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);
constexpr DWORD kReplace = 1;
constexpr DWORD kThoughOpen = 2;

struct CRename
{
    DWORD flags;
    HANDLE folder;
    DWORD nameBytes;
    wchar_t name[1];
};

bool RenameOver(HANDLE handle, const fs::path& target)
{
    const std::wstring name = fs::path(target).make_preferred().native();
    std::vector<unsigned char> memory(sizeof(CRename) + name.size() * sizeof(wchar_t));
    auto* const rename = reinterpret_cast<CRename*>(memory.data());
    rename->flags = kReplace | kThoughOpen;
    rename->nameBytes = static_cast<DWORD>(name.size() * sizeof(wchar_t));
    name.copy(rename->name, name.size());
    return SetFileInformationByHandle(handle, kRename, rename, static_cast<DWORD>(memory.size())) !=
           0;
}

/// The same where the file system knows the old way only, which has to wait until nobody has the
/// target open. Who reads a file here does so in no time.
bool MoveOver(const fs::path& file, const fs::path& target)
{
    constexpr DWORD kHow = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    constexpr DWORD kNap = 5; // ms
    constexpr int kMostTries = 200;
    for (int i = 0; i < kMostTries; ++i) {
        if (MoveFileExW(file.c_str(), target.c_str(), kHow) != 0) {
            return true;
        }
        const DWORD error = GetLastError();
        if (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION) {
            break;
        }
        Sleep(kNap);
        SetLastError(error);
    }
    return false;
}

} // namespace

int CheckTarget(const fs::path& target)
{
    const int descriptor = OpenDescriptor(target, FileAccess::readWrite);
    if (descriptor < 0) {
        return errno;
    }
    CloseDescriptor(descriptor);
    return 0;
}

bool TakeAfter(int /*descriptor*/, const fs::path& file, const fs::path& target)
{
    if (GetFileAttributesW(target.c_str()) == INVALID_FILE_ATTRIBUTES) {
        return true;
    }
    std::vector<unsigned char> owner = SecurityOf(target, kOwner);
    std::vector<unsigned char> rights = SecurityOf(target, kRights);
    const bool isGiven =
        (owner == SecurityOf(file, kOwner) || SetSecurity(file, kOwner, owner)) &&
        (rights == SecurityOf(file, kRights) || SetSecurity(file, kRights, rights));
    if (!isGiven) {
        errno = EACCES;
    }
    return isGiven;
}

int OpenNameless()
{
    std::array<wchar_t, MAX_PATH + 1> folder = {};
    std::array<wchar_t, MAX_PATH + 1> name = {};
    if (GetTempPathW(MAX_PATH, folder.data()) == 0 ||
        GetTempFileNameW(folder.data(), L"rad", 0, name.data()) == 0) {
        SetErrno();
        return -1;
    }
    CHandle handle =
        OpenFileShared(name.data(), GENERIC_READ | GENERIC_WRITE | DELETE, TRUNCATE_EXISTING,
                       FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE);
    if (!handle.IsValid()) {
        SetErrno();
        DeleteFileW(name.data());
        return -1;
    }
    return DescriptorOf(std::move(handle), _O_RDWR);
}

bool PutInPlace(int descriptor, const fs::path& file, const fs::path& target)
{
    if (!SyncDescriptor(descriptor)) {
        return false;
    }
    const bool done = RenameOver(HandleOf(descriptor), target) || MoveOver(file, target);
    if (!done) {
        SetErrno();
    }
    return done;
}

bool RemoveFile(const fs::path& file) noexcept
{
    return DeleteFileW(file.c_str()) != 0;
}
