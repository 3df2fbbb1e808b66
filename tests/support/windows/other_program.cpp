#include "tests/support/other_program.h"

#include "platform/encoding.h"
#include "platform/environment.h"
#include "platform/loaded_library.h"
#include "platform/windows/handle.h"

COtherProgram::COtherProgram(const char* part, const CString& path) : m_process(0)
{
    SetSystemEnvironment(L"RADSEL_OTHER_PATH", path);
    static const char here = 0;
    CString line = L"\"" + CLoadedLibrary(&here).File().native() +
                   L"\" --gtest_filter=DISABLED_Other." + WideFromUtf8(part) +
                   L" --gtest_also_run_disabled_tests";
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION started = {};
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                       &started) != 0) {
        CloseHandle(started.hThread);
        m_process = reinterpret_cast<std::intptr_t>(started.hProcess);
    }
}

bool COtherProgram::Succeeds()
{
    const CHandle process(reinterpret_cast<HANDLE>(m_process));
    DWORD code = 1;
    return process.IsValid() && WaitForSingleObject(process.Get(), INFINITE) == WAIT_OBJECT_0 &&
           GetExitCodeProcess(process.Get(), &code) != 0 && code == 0;
}
