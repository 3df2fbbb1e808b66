// Preloaded into a program, makes the n-th call of a kind fail that is about something under a
// folder. Which one, a test in the program says by RadselFailCall(), or the environment:
//   RADSEL_FAIL_FOLDER  absolute path of the folder
//   RADSEL_FAIL_CALL    name of the system's function: open, read, ...
//   RADSEL_FAIL_NTH     which of these calls fails; 0 lets all pass
//   RADSEL_FAIL_ERRNO   what it fails with; 0 lets a write write half
//   RADSEL_FAIL_REPORT  file that takes the count of these calls at the end of the program

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct CPlan
{
    char folder[PATH_MAX] = {};
    char call[32] = {};
    int nth = 0;
    int error = 0;
    std::atomic<int> count = 0;
};
CPlan g_plan;

template <class Function>
Function* Real(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool IsUnder(std::string_view path)
{
    const std::string_view folder = g_plan.folder;
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

/// True if it is this call's turn to fail; errno is set then.
bool IsTurn()
{
    const bool turn = ++g_plan.count == g_plan.nth;
    if (turn) {
        errno = g_plan.error;
    }
    return turn;
}

bool IsMeant(const char* call)
{
    return g_plan.folder[0] != '\0' && std::strcmp(call, g_plan.call) == 0;
}

bool FailsAt(const char* call, const char* path, int folder = AT_FDCWD)
{
    if (!IsMeant(call) || path == nullptr) {
        return false;
    }
    const int before = errno;
    char whole[2 * PATH_MAX] = {};
    char base[PATH_MAX] = {};
    if (path[0] != '/') {
        char link[64];
        std::snprintf(link, sizeof link, "/proc/self/fd/%d", folder);
        if (folder == AT_FDCWD ? getcwd(base, sizeof base) == nullptr
                               : readlink(link, base, sizeof base - 1) < 0) {
            base[0] = '\0';
        }
    }
    std::snprintf(whole, sizeof whole, "%s%s%s", base, path[0] == '/' ? "" : "/", path);
    errno = before;
    return IsUnder(whole) && IsTurn();
}

bool FailsOn(const char* call, int descriptor)
{
    if (!IsMeant(call)) {
        return false;
    }
    const int before = errno;
    char link[64];
    char path[PATH_MAX] = {};
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    const bool known = readlink(link, path, sizeof path - 1) > 0;
    errno = before;
    return known && IsUnder(path) && IsTurn();
}

void Take(const char* folder, const char* call, int nth, int error)
{
    g_plan.count = 0;
    g_plan.nth = nth;
    g_plan.error = error;
    std::snprintf(g_plan.call, sizeof g_plan.call, "%s", call);
    std::snprintf(g_plan.folder, sizeof g_plan.folder, "%s", folder);
}

const char* Variable(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

struct CFromEnvironment
{
    CFromEnvironment()
    {
        Take(Variable("RADSEL_FAIL_FOLDER"), Variable("RADSEL_FAIL_CALL"),
             std::atoi(Variable("RADSEL_FAIL_NTH")), std::atoi(Variable("RADSEL_FAIL_ERRNO")));
    }
    ~CFromEnvironment()
    {
        g_plan.call[0] = '\0';
        if (std::FILE* const report = std::fopen(Variable("RADSEL_FAIL_REPORT"), "w")) {
            std::fprintf(report, "%d\n", g_plan.count.load());
            std::fclose(report);
        }
    }
};
const CFromEnvironment kFromEnvironment;

mode_t ModeOf(int flags, va_list rest)
{
    return (flags & O_CREAT) != 0 ? static_cast<mode_t>(va_arg(rest, int)) : 0;
}

} // namespace

extern "C" {

/// Lets the n-th of the calls to come fail, none for 0. Returns how many there were since it was
/// asked before.
int RadselFailCall(const char* folder, const char* call, int nth, int error)
{
    const int count = g_plan.count;
    Take(folder, call, nth, error);
    return count;
}

int open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = ModeOf(flags, rest);
    va_end(rest);
    return FailsAt("open", path) ? -1 : Real<int(const char*, int, ...)>("open")(path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = ModeOf(flags, rest);
    va_end(rest);
    return FailsAt("open", path) ? -1
                                 : Real<int(const char*, int, ...)>("open64")(path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = ModeOf(flags, rest);
    va_end(rest);
    return FailsAt("open", path, folder)
               ? -1
               : Real<int(int, const char*, int, ...)>("openat")(folder, path, flags, mode);
}

int mkostemps(char* path, int suffix, int flags)
{
    return FailsAt("open", path) ? -1
                                 : Real<int(char*, int, int)>("mkostemps")(path, suffix, flags);
}

dirent* readdir(DIR* folder)
{
    return FailsOn("readdir", dirfd(folder)) ? nullptr : Real<dirent*(DIR*)>("readdir")(folder);
}

ssize_t read(int descriptor, void* buffer, size_t count)
{
    return FailsOn("read", descriptor)
               ? -1
               : Real<ssize_t(int, void*, size_t)>("read")(descriptor, buffer, count);
}

ssize_t write(int descriptor, const void* buffer, size_t count)
{
    if (FailsOn("write", descriptor)) {
        if (g_plan.error != 0) {
            return -1;
        }
        count = (count + 1) / 2;
    }
    return Real<ssize_t(int, const void*, size_t)>("write")(descriptor, buffer, count);
}

int fsync(int descriptor)
{
    return FailsOn("fsync", descriptor) ? -1 : Real<int(int)>("fsync")(descriptor);
}

/// The system closes the descriptor all the same.
int close(int descriptor)
{
    const bool fails = FailsOn("close", descriptor);
    const int result = Real<int(int)>("close")(descriptor);
    if (fails) {
        errno = g_plan.error;
    }
    return fails ? -1 : result;
}

int ftruncate(int descriptor, off_t length) noexcept
{
    return FailsOn("ftruncate", descriptor)
               ? -1
               : Real<int(int, off_t)>("ftruncate")(descriptor, length);
}

off_t lseek(int descriptor, off_t place, int from) noexcept
{
    return FailsOn("lseek", descriptor)
               ? -1
               : Real<off_t(int, off_t, int)>("lseek")(descriptor, place, from);
}

int flock(int descriptor, int operation) noexcept
{
    return FailsOn("flock", descriptor) ? -1 : Real<int(int, int)>("flock")(descriptor, operation);
}

int fchmod(int descriptor, mode_t mode) noexcept
{
    return FailsOn("fchmod", descriptor) ? -1 : Real<int(int, mode_t)>("fchmod")(descriptor, mode);
}

int rename(const char* from, const char* to) noexcept
{
    return FailsAt("rename", to) ? -1 : Real<int(const char*, const char*)>("rename")(from, to);
}

int unlink(const char* path) noexcept
{
    return FailsAt("unlink", path) ? -1 : Real<int(const char*)>("unlink")(path);
}

int mkdir(const char* path, mode_t mode) noexcept
{
    return FailsAt("mkdir", path) ? -1 : Real<int(const char*, mode_t)>("mkdir")(path, mode);
}

int stat(const char* path, struct stat* status) noexcept
{
    return FailsAt("stat", path) ? -1 : Real<int(const char*, struct stat*)>("stat")(path, status);
}

int lstat(const char* path, struct stat* status) noexcept
{
    return FailsAt("stat", path) ? -1 : Real<int(const char*, struct stat*)>("lstat")(path, status);
}

int fstat(int descriptor, struct stat* status) noexcept
{
    return FailsOn("fstat", descriptor) ? -1
                                        : Real<int(int, struct stat*)>("fstat")(descriptor, status);
}

char* realpath(const char* path, char* resolved) noexcept
{
    return FailsAt("realpath", path) ? nullptr
                                     : Real<char*(const char*, char*)>("realpath")(path, resolved);
}
}
