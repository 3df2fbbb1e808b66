#include "tests/support/page_opener.h"

#include <cerrno>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace reference_host;

namespace {

constexpr int kPatience = 30000; // ms, for a machine that is busy with other things

} // namespace

const char* const CPageOpener::kOddFolder = "con spazi; $(false) 'e' \"altro\"";

CPageOpener::CPageOpener(const CTempFolder& folder)
    : m_program(kSettingHelpProgram, folder.Path("opener"))
{
    const std::string pipe = (folder.Root() / "pipe").string();
    folder.WriteBytes("opener", "#!/bin/sh\nprintf '%s|%s' \"$#\" \"$1\" > '" + pipe + "'\n");
    std::filesystem::permissions(folder.Root() / "opener", std::filesystem::perms::owner_all);
    mkfifo(pipe.c_str(), 0600);
    // Opened for both directions, so that the pipe never ends between two writers.
    m_pipe = open(pipe.c_str(), O_RDWR | O_CLOEXEC);
}

CPageOpener::~CPageOpener()
{
    close(m_pipe);
}

std::string CPageOpener::WaitForPage() const
{
    pollfd ready = {m_pipe, POLLIN, 0};
    char bytes[1024];
    if (poll(&ready, 1, kPatience) != 1) {
        return {};
    }
    const ssize_t count = read(m_pipe, bytes, sizeof bytes);
    return {bytes, count > 0 ? static_cast<std::size_t>(count) : 0};
}

bool CPageOpener::HasLeftAChild()
{
    return waitpid(-1, nullptr, WNOHANG) >= 0 || errno != ECHILD;
}
