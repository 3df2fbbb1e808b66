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

/// The name that the system gives to an open file, without what marks it as the system's.
fs::path NameOf(HANDLE handle)
{
    constexpr std::wstring_view kMark = L"\\\\?\\";
    constexpr std::wstring_view kShareMark = L"\\\\?\\UNC\\";
    std::wstring name = AskForText([handle](wchar_t* text, DWORD size) {
        return GetFinalPathNameByHandleW(handle, text, size, FILE_NAME_NORMALIZED);
    });
    if (name.starts_with(kShareMark)) {
        return L"\\\\" + name.substr(kShareMark.size());
    }
    return name.starts_with(kMark) ? name.substr(kMark.size()) : name;
}

} // namespace

fs::path ResolvePath(const CString& path)
{
    return fs::path(path).make_preferred();
}

fs::path FindFile(const CString& path, std::error_code& error)
{
    error.clear();
    const fs::path resolved = ResolvePath(path);
    const CHandle handle =
        OpenFileShared(resolved, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    fs::path real = handle.IsValid() ? NameOf(handle.Get()) : fs::path();
    if (real.empty()) {
        real = AskForText([&resolved](wchar_t* text, DWORD size) {
            return GetFullPathNameW(resolved.c_str(), size, text, nullptr);
        });
    }
    return real.empty() ? resolved : real;
}

CString TextFromPath(const fs::path& path)
{
    return path.generic_wstring();
}
