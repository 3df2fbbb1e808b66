#include "platform/detached_program.h"

#include "platform/encoding.h"

#include <cerrno>
#include <string>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kPatience = 1000; // ms

/// The shell only watches: program and argument reach it as words that it does not read. What it
/// writes to descriptor 3 tells a failure; the program itself does not hold that open.
constexpr char kWatch[] = "\"$0\" \"$1\" 2>/dev/null 3>&- || printf x >&3";

/// Runs in the child of this process, where memory and locks of other threads are in any state:
/// nothing here may allocate.
[[noreturn]] void RunInGrandchild(char* const* arguments, int report)
{
    setsid();
    if (fork() == 0) {
        constexpr int kReport = 3;
        if (report == kReport) {
            fcntl(report, F_SETFD, 0);
        } else {
            dup2(report, kReport);
        }
        execv("/bin/sh", arguments);
    }
    _exit(0);
}

/// True if a failure is reported before the other end is closed or patience ends.
bool Fails(int reports)
{
    pollfd ready = {reports, POLLIN, 0};
    int count = 0;
    do {
        count = poll(&ready, 1, kPatience);
    } while (count < 0 && errno == EINTR);
    char byte = 0;
    return count > 0 && read(reports, &byte, 1) == 1;
}

} // namespace

bool StartDetached(const CString& program, const std::filesystem::path& argument)
{
    std::string shell = "sh";
    std::string option = "-c";
    std::string watch = kWatch;
    std::string name = Utf8FromWide(program);
    std::string value = argument.native();
    char* const arguments[] = {shell.data(), option.data(), watch.data(),
                               name.data(),  value.data(),  nullptr};
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        return false;
    }
    // The program becomes a grandchild whose parent is gone, so that the system collects its end
    // and the host's own watch over child processes never meets it.
    const pid_t child = fork();
    if (child == 0) {
        RunInGrandchild(arguments, ends[1]);
    }
    close(ends[1]);
    while (child > 0 && waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    const bool fails = child < 0 || Fails(ends[0]);
    close(ends[0]);
    return !fails;
}

bool OpenDocument(const std::filesystem::path& document)
{
    return StartDetached(L"xdg-open", document);
}
