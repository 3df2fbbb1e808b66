#include "platform/write_protection.h"

#include "platform/windows/handle.h"

bool IsWriteProtected(const std::filesystem::path& path)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        return false;
    }
    // A folder with this mark may be written to.
    const bool isFolder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (!isFolder && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        return true;
    }
    const CHandle handle =
        OpenFileShared(path, GENERIC_WRITE, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    const DWORD error = handle.IsValid() ? ERROR_SUCCESS : GetLastError();
    return error == ERROR_ACCESS_DENIED || error == ERROR_WRITE_PROTECT;
}
