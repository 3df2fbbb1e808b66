#include "reference_host/catalog/detached_program.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

namespace reference_host {

namespace {

/// Runs in the child of this process, where memory and locks of other threads are in any state:
/// nothing here may allocate.
[[noreturn]] void RunInGrandchild(const char* program, char* const* arguments)
{
    setsid();
    if (fork() == 0) {
        execvp(program, arguments);
    }
    _exit(0);
}

} // namespace

void StartDetached(const std::string& program, const std::string& argument)
{
    std::string name = program;
    std::string value = argument;
    char* const arguments[] = {name.data(), value.data(), nullptr};

    // The program becomes a grandchild whose parent is gone, so that the system collects its end
    // and the host's own watch over child processes never meets it.
    const pid_t child = fork();
    if (child == 0) {
        RunInGrandchild(name.c_str(), arguments);
    }
    while (child > 0 && waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
}

} // namespace reference_host
