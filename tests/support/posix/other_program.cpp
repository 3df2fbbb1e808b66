#include "tests/support/other_program.h"

#include "platform/environment.h"

#include <string>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

COtherProgram::COtherProgram(const char* part, const CString& path) : m_process(-1)
{
    SetSystemEnvironment(L"RADSEL_OTHER_PATH", path);
    std::string program = "/proc/self/exe";
    std::string filter = std::string("--gtest_filter=DISABLED_Other.") + part;
    std::string disabled = "--gtest_also_run_disabled_tests";
    char* const arguments[] = {program.data(), filter.data(), disabled.data(), nullptr};
    pid_t process = -1;
    if (posix_spawn(&process, program.c_str(), nullptr, nullptr, arguments, environ) == 0) {
        m_process = process;
    }
}

bool COtherProgram::Succeeds()
{
    int status = -1;
    return m_process > 0 && waitpid(static_cast<pid_t>(m_process), &status, 0) == m_process &&
           status == 0;
}
