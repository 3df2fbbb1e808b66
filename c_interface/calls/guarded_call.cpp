#include "c_interface/calls/guarded_call.h"

#include "platform/encoding.h"
#include "platform/exception.h"

#include <exception>
#include <mutex>
#include <new>
#include <string>
#include <utility>

namespace c_interface {

namespace {

/// Locked while a call runs; the same thread may come in again.
std::recursive_mutex& RunningCall()
{
    static std::recursive_mutex mutex;
    return mutex;
}

int g_depth = 0;

/// Counts the calls that are at work, one inside the other.
class CDepth
{
public:
    CDepth() { ++g_depth; }
    ~CDepth() { --g_depth; }
    CDepth(const CDepth&) = delete;
    CDepth& operator=(const CDepth&) = delete;
};

int Fail(int code, CReason reason)
{
    KeepReason(std::move(reason));
    return code;
}

/// The code and the reason of the exception at work.
int Explain()
{
    try {
        throw;
    } catch (const CCallFault& fault) {
        return Fail(fault.GetCode(), fault.GetReason());
    } catch (const CHostFailure& failure) {
        return Fail(RADSEL_HOST_FAILED, failure.GetReason());
    } catch (const CFileException& error) {
        return Fail(RADSEL_BAD_FILE, {error.what(), Utf8FromWide(error.GetFileName()), 0});
    } catch (const CException& error) {
        return Fail(RADSEL_BAD_FILE, {error.what(), {}, 0});
    } catch (const std::bad_alloc&) {
        return Fail(RADSEL_NO_MEMORY, {"There is not enough memory.", {}, 0});
    } catch (const std::exception& error) {
        return Fail(RADSEL_INTERNAL_ERROR, {error.what(), {}, 0});
    } catch (...) {
        return Fail(RADSEL_INTERNAL_ERROR, {"An exception of an unknown kind.", {}, 0});
    }
}

} // namespace

int RunGuarded(const std::function<int()>& work) noexcept
{
    try {
        KeepReason({});
        const std::unique_lock lock(RunningCall(), std::try_to_lock);
        if (!lock) {
            return Fail(RADSEL_WRONG_THREAD, {"Another thread's call is still running.", {}, 0});
        }
        const CDepth depth;
        try {
            const int result = work();
            if (result >= 0) {
                KeepReason({});
            } else if (result == RADSEL_CANCELLED) {
                KeepReason({"The dialog was cancelled.", {}, 0});
            }
            return result;
        } catch (...) {
            return Explain();
        }
    } catch (...) {
        // Not even the reason could be kept.
        return RADSEL_NO_MEMORY;
    }
}

bool IsNested()
{
    return g_depth > 1;
}

void Require(const void* pointer, const char* name)
{
    if (pointer == nullptr) {
        throw CCallFault(RADSEL_BAD_ARGUMENT, std::string(name) + " must not be null.");
    }
}

} // namespace c_interface
