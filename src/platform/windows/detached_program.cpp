#include "platform/detached_program.h"

#include "platform/windows/handle.h"

#include <shellapi.h>

#include <cstdint>

namespace {

constexpr DWORD kPatience = 1000; // ms

/// A word as programs take command lines apart: in quotes, with a backslash before each quote and
/// twice as many of those that stand before one.
CString Quoted(const CString& word)
{
    CString quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : word) {
        if (c == L'"') {
            quoted.append(backslashes + 1, L'\\');
        }
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        quoted += c;
    }
    quoted.append(backslashes, L'\\');
    return quoted + L'"';
}

} // namespace

bool StartDetached(const CString& program, const std::filesystem::path& argument)
{
    const CString value = std::filesystem::path(argument).make_preferred().native();
    CString line = Quoted(program) + L' ' + Quoted(value);
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION started = {};
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE,
                       CREATE_NEW_PROCESS_GROUP | CREATE_NO_WINDOW, nullptr, nullptr, &start,
                       &started) == 0) {
        return false;
    }
    const CHandle thread(started.hThread);
    const CHandle process(started.hProcess);
    DWORD code = 0;
    return WaitForSingleObject(process.Get(), kPatience) != WAIT_OBJECT_0 ||
           (GetExitCodeProcess(process.Get(), &code) != 0 && code == 0);
}

bool OpenDocument(const std::filesystem::path& document)
{
    // Answers with a number above this, in the guise of a handle.
    constexpr std::intptr_t kLastFailure = 32;
    const HINSTANCE answer =
        ShellExecuteW(nullptr, nullptr, document.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<std::intptr_t>(answer) > kLastFailure;
}
