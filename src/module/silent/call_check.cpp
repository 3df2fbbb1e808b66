#include "module/silent/call_check.h"

#ifdef RADSEL_CHECKS

#include <mutex>
#include <stdexcept>
#include <thread>

namespace {

struct CRunningCalls
{
    std::mutex mutex;
    std::thread::id caller;
    int depth = 0;
};

CRunningCalls& Running()
{
    static CRunningCalls calls;
    return calls;
}

} // namespace

CCallCheck::CCallCheck()
{
    CRunningCalls& calls = Running();
    const std::lock_guard lock(calls.mutex);
    if (calls.depth > 0 && calls.caller != std::this_thread::get_id()) {
        throw std::logic_error("radsel: called from a second thread while a call runs");
    }
    calls.caller = std::this_thread::get_id();
    ++calls.depth;
}

CCallCheck::~CCallCheck()
{
    CRunningCalls& calls = Running();
    const std::lock_guard lock(calls.mutex);
    --calls.depth;
}

#else

CCallCheck::CCallCheck() = default;
CCallCheck::~CCallCheck() = default;

#endif
