#include "platform/file_state.h"

#include "platform/windows/handle.h"

namespace {

std::uint64_t Join(DWORD high, DWORD low)
{
    return static_cast<std::uint64_t>(high) << 32 | low;
}

} // namespace

std::optional<CFileState> StateOf(const std::filesystem::path& path)
{
    const CHandle handle =
        OpenFileShared(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    BY_HANDLE_FILE_INFORMATION file = {};
    FILE_BASIC_INFO times = {};
    if (!handle.IsValid() || GetFileInformationByHandle(handle.Get(), &file) == 0 ||
        GetFileInformationByHandleEx(handle.Get(), FileBasicInfo, &times, sizeof times) == 0) {
        return std::nullopt;
    }
    return CFileState{file.dwVolumeSerialNumber, Join(file.nFileIndexHigh, file.nFileIndexLow),
                      Join(file.nFileSizeHigh, file.nFileSizeLow), times.LastWriteTime.QuadPart,
                      times.ChangeTime.QuadPart};
}
