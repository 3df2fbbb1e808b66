#include "platform/path.h"

#include "platform/system_error.h"
#include "platform/windows/handle.h"

#include <string>
#include <string_view>

namespace fs = std::filesystem;

namespace {

/// What the system answers with a text of a length that it tells first.
template <class Ask>
std::wstring AskForText(Ask ask)
{
    std::wstring text(ask(nullptr, 0), L'\0');
    const DWORD length = text.empty() ? 0 : ask(text.data(), static_cast<DWORD>(text.size()));
    text.resize(length < text.size() ? length : 0);
    return text;
}

/// What marks a name as the system's own, which may be as long as it likes; of a share, and of
/// anything else.
constexpr std::wstring_view kMark = L"\\\\?\\";
constexpr std::wstring_view kShareMark = L"\\\\?\\UNC\\";
constexpr std::wstring_view kShare = L"\\\\";
constexpr std::wstring_view kDevice = L"\\\\.\\";

/// Longer names open with the mark only. A file that is locked or replaced gets neighbours, with
/// names that are longer than its own by at most so much.
constexpr std::size_t kLongestAddition = 32;
constexpr std::size_t kLongestUnmarked = MAX_PATH - 1 - kLongestAddition;

/// The name without its mark where it opens without.
std::wstring Unmarked(const std::wstring& name)
{
    std::wstring plain = name;
    if (name.starts_with(kShareMark)) {
        plain.replace(0, kShareMark.size(), kShare);
    } else if (name.starts_with(kMark)) {
        plain.erase(0, kMark.size());
    }
    return plain.size() <= kLongestUnmarked ? plain : name;
}

/// The whole name with its mark where it does not open without.
std::wstring Marked(std::wstring whole)
{
    const bool opens =
        whole.size() <= kLongestUnmarked || whole.starts_with(kMark) || whole.starts_with(kDevice);
    if (!opens && whole.starts_with(kShare)) {
        whole.replace(0, kShare.size(), kShareMark);
    } else if (!opens) {
        whole.insert(0, kMark);
    }
    return whole;
}

/// The name that the system gives to an open file.
std::wstring NameOf(HANDLE handle)
{
    return Unmarked(AskForText([handle](wchar_t* text, DWORD size) {
        return GetFinalPathNameByHandleW(handle, text, size, FILE_NAME_NORMALIZED);
    }));
}

/// The path from its root on; empty if it leads nowhere.
std::wstring WholePathOf(const fs::path& path)
{
    return Marked(AskForText([&path](wchar_t* text, DWORD size) {
        return GetFullPathNameW(path.c_str(), size, text, nullptr);
    }));
}

} // namespace

fs::path ResolvePath(const CString& path)
{
    return fs::path(path).make_preferred();
}

fs::path FindFile(const CString& path, std::error_code& error)
{
    return FollowLinks(ResolvePath(path), error);
}

fs::path FollowLinks(const fs::path& file, std::error_code& error)
{
    error.clear();
    const std::wstring whole = WholePathOf(file);
    if (whole.empty()) {
        return file;
    }
    const CHandle handle =
        OpenFileShared(whole, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    const std::wstring real = handle.IsValid() ? NameOf(handle.Get()) : std::wstring();
    return real.empty() ? whole : real;
}

CString TextFromPath(const fs::path& path)
{
    return path.generic_wstring();
}
