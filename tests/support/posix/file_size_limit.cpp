#include "tests/support/file_size_limit.h"

#include <csignal>

#include <sys/resource.h>

namespace {

/// Returns the limit that was in force.
rlim_t SetLimit(rlim_t bytes)
{
    rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlim_t before = limit.rlim_cur;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
    return before;
}

} // namespace

CFileSizeLimit::CFileSizeLimit(std::uint64_t bytes)
    : m_before(SetLimit(bytes)), m_handler(std::signal(SIGXFSZ, SIG_IGN))
{
}

CFileSizeLimit::~CFileSizeLimit()
{
    SetLimit(m_before);
    std::signal(SIGXFSZ, m_handler);
}
