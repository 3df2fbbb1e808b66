// Stores numbers, to be killed at it, beside others that do the same, and under calls of the system
// that fail; and tells what is stored then.

#include "tests/faults/stores.h"
#include "tests/support/temp_folder.h"
#include "workbench/building/json_fields.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <dlfcn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

using CFiles = std::map<fs::path, std::string>;

/// What works on a store does so in a process of its own, which knows nothing from before.
pid_t Start(const std::function<int()>& work)
{
    const pid_t child = fork();
    if (child == 0) {
        try {
            std::_Exit(work());
        } catch (const std::exception& error) {
            std::cout << error.what() << std::endl;
            std::_Exit(EXIT_FAILURE);
        }
    }
    return child;
}

/// What the work came to; -1 if it ended otherwise.
int Await(pid_t child)
{
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool IsSo(const std::function<bool()>& question)
{
    return Await(Start([&] { return question() ? EXIT_SUCCESS : EXIT_FAILURE; })) == EXIT_SUCCESS;
}

constexpr std::size_t kWriters = 2;
const CString kNames[kWriters] = {L"a", L"b"};

/// A number for each writer, which processes tell each other.
std::atomic<int>* SharedNumbers()
{
    return static_cast<std::atomic<int>*>(mmap(nullptr, kWriters * sizeof(std::atomic<int>),
                                               PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS,
                                               -1, 0));
}

/// Lays out the store: the file of placements takes none before it is there.
void Begin(const CStore& store)
{
    Await(Start([&] {
        store.put(L"b", 1);
        return store.put(L"b", 1) && store.put(L"a", 1) ? EXIT_SUCCESS : EXIT_FAILURE;
    }));
}

CFiles ReadFiles(const fs::path& folder)
{
    CFiles files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            std::ifstream file(entry.path(), std::ios::binary);
            files[entry.path()] = std::string(std::istreambuf_iterator<char>(file), {});
        }
    }
    return files;
}

void RestoreFiles(const fs::path& folder, const CFiles& files)
{
    for (const auto& [path, bytes] : ReadFiles(folder)) {
        fs::remove(path);
    }
    for (const auto& [path, bytes] : files) {
        std::ofstream(path, std::ios::binary) << bytes;
    }
}

std::set<fs::path> NamesOf(const CFiles& files)
{
    std::set<fs::path> names;
    for (const auto& [path, bytes] : files) {
        names.insert(path);
    }
    return names;
}

/// Kills processes that store numbers; two of them also look whether each keeps its own.
class CKillRun
{
public:
    CKillRun(const CStore& store, std::string folder, std::size_t writers)
        : m_store(store), m_folder(std::move(folder)), m_writers(writers)
    {
        Begin(m_store);
        m_names = NamesOf(ReadFiles(m_folder));
    }

    bool Run(int rounds, unsigned seed)
    {
        std::mt19937 random(seed);
        std::uniform_int_distribution<useconds_t> moment(1, 30000);
        for (int round = 0; round < rounds; ++round) {
            KillAfter(moment(random));
            const std::size_t files = NamesOf(ReadFiles(m_folder)).size() - m_names.size();
            m_torn += files > 0 ? 1 : 0;
            Expect(files <= m_writers, "more files than were being written");
            Expect(IsSo([&] { return HoldsAll(); }), "a number is gone");
        }
        Expect(IsSo([&] { return m_store.put(kNames[0], 1); }), "nothing can be stored any more");
        Expect(NamesOf(ReadFiles(m_folder)) == m_names, "a file is left over");
        std::cout << m_store.strName << ": " << rounds << " times " << m_writers
                  << " writers killed (seed " << seed << "), " << m_torn << " times at a file, "
                  << m_wrong << " times wrong\n";
        return m_wrong == 0;
    }

private:
    void KillAfter(useconds_t moment)
    {
        std::vector<pid_t> children;
        for (std::size_t i = 0; i < m_writers; ++i) {
            m_begun[i] = 0;
            children.push_back(Start([&, i] {
                const int first = m_store.get(kNames[i]) + 1;
                m_begun[i] = 1;
                for (int number = first; m_store.put(kNames[i], number); ++number) {
                    m_stored[i] = number;
                    usleep(200);
                    if (m_store.bNames && m_store.get(kNames[i]) != number) {
                        break;
                    }
                }
                return EXIT_FAILURE;
            }));
        }
        while (m_begun[0] + m_begun[m_writers - 1] < 2) {
            usleep(100);
        }
        usleep(moment);
        for (const pid_t child : children) {
            kill(child, SIGKILL);
        }
        for (const pid_t child : children) {
            Expect(Await(child) == -1, "a number was not stored, or the other writer took it away");
        }
    }

    /// Whoever stores a number last in a store without names wins.
    bool HoldsAll() const
    {
        bool all = true;
        for (std::size_t i = 0; i < m_writers; ++i) {
            const int number = m_store.get(kNames[i]);
            all = all && (!m_store.bNames || number >= m_stored[i]);
        }
        return all;
    }

    void Expect(bool isSo, const char* what)
    {
        if (!isSo) {
            ++m_wrong;
            std::cout << m_store.strName << ": " << what << std::endl;
        }
    }

    const CStore& m_store;
    std::string m_folder;
    std::size_t m_writers;
    std::set<fs::path> m_names;
    std::atomic<int>* const m_begun = SharedNumbers();
    std::atomic<int>* const m_stored = SharedNumbers();
    int m_torn = 0;
    int m_wrong = 0;
};

CStore Open(const std::string& name, const std::string& folder)
{
    for (CStore& store : OpenStores(folder)) {
        if (store.strName == name) {
            return std::move(store);
        }
    }
    throw std::invalid_argument("no such store: " + name);
}

using FailCall = int(const char* folder, const char* call, int nth, int error);

struct CFault
{
    const char* call;
    int error;
};
constexpr CFault kFaults[] = {
    {"open", EMFILE},     {"open", EIO},      {"open", EACCES},  {"open", ENOSPC},
    {"readdir", EIO},     {"read", EIO},      {"write", ENOSPC}, {"write", EIO},
    {"write", 0},         {"fsync", EIO},     {"close", EIO},    {"ftruncate", EIO},
    {"lseek", EIO},       {"flock", ENOLCK},  {"fchmod", EIO},   {"fchmod", EPERM},
    {"rename", EIO},      {"rename", ENOSPC}, {"unlink", EIO},   {"mkdir", ENOSPC},
    {"stat", EIO},        {"stat", EACCES},   {"fstat", EIO},    {"realpath", EIO},
    {"realpath", ENOMEM},
};

constexpr int kOld = 1;
constexpr int kNew = 2;

/// Lets every call of every kind fail that storing or reading a number needs.
class CFaultRun
{
public:
    CFaultRun(const CStore& store, std::string folder, FailCall* failCall)
        : m_store(store), m_folder(std::move(folder)), m_failCall(failCall)
    {
        Begin(m_store);
        m_before = ReadFiles(m_folder);
    }

    bool Run()
    {
        for (const CFault& fault : kFaults) {
            for (int nth = 1; Try(fault, nth); ++nth) {
                ++m_tried;
            }
            for (int nth = 1; TryReading(fault, nth); ++nth) {
                ++m_tried;
            }
        }
        std::cout << m_store.strName << ": " << m_tried << " calls failed, " << m_stored
                  << " times stored all the same, " << m_wrong << " times wrong\n";
        return m_wrong == 0 && m_tried > 0;
    }

private:
    enum Answer
    {
        stored = 10,
        refused,
        fewerCalls
    };

    /// False if there are fewer such calls.
    bool Try(const CFault& fault, int nth)
    {
        RestoreFiles(m_folder, m_before);
        const int answer = Await(Start([&] { return Store(fault, nth); }));
        if (answer == fewerCalls) {
            return false;
        }
        m_stored += answer == stored ? 1 : 0;
        const auto expect = [&](const char* what, const std::function<bool()>& isSo) {
            Expect(fault, nth, what, IsSo(isSo));
        };
        expect("crashed", [&] { return answer == stored || answer == refused; });
        expect("the old number is gone and the new one not there", [&] {
            const int number = m_store.get(L"a");
            return number == kNew || (number == kOld && !(answer == stored && m_store.bTells));
        });
        expect("another number is gone",
               [&] { return !m_store.bNames || m_store.get(L"b") == kOld; });
        expect("nothing can be stored any more",
               [&] { return m_store.put(L"a", kNew + 1) && m_store.get(L"a") == kNew + 1; });
        expect("a file is left over",
               [&] { return NamesOf(ReadFiles(m_folder)) == NamesOf(m_before); });
        return true;
    }

    /// What cannot be read may be told as nothing, or as what is there without it. False if there
    /// are fewer such calls.
    bool TryReading(const CFault& fault, int nth)
    {
        RestoreFiles(m_folder, m_before);
        const int answer = Await(Start([&] {
            m_failCall(m_folder.c_str(), fault.call, nth, fault.error);
            try {
                m_store.get(L"a");
            } catch (const workbench::CContentException&) {
                // A building that cannot be read is refused in words.
            }
            return m_failCall("", "", 0, 0) < nth ? fewerCalls : refused;
        }));
        Expect(fault, nth, "crashed in reading", answer == refused || answer == fewerCalls);
        Expect(fault, nth, "reading has changed the files", ReadFiles(m_folder) == m_before);
        return answer != fewerCalls;
    }

    void Expect(const CFault& fault, int nth, const char* what, bool isSo)
    {
        if (!isSo) {
            ++m_wrong;
            std::cout << m_store.strName << ": " << fault.call << " number " << nth
                      << " with error " << fault.error << ": " << what << std::endl;
        }
    }

    int Store(const CFault& fault, int nth) const
    {
        m_failCall(m_folder.c_str(), fault.call, nth, fault.error);
        const bool done = m_store.put(L"a", kNew);
        if (m_failCall("", "", 0, 0) < nth) {
            return fewerCalls;
        }
        return done ? stored : refused;
    }

    const CStore& m_store;
    std::string m_folder;
    FailCall* m_failCall;
    CFiles m_before;
    int m_tried = 0;
    int m_stored = 0;
    int m_wrong = 0;
};

bool RunFaults(const CStore& store, const std::string& folder)
{
    auto* const failCall = reinterpret_cast<FailCall*>(dlsym(RTLD_DEFAULT, "RadselFailCall"));
    if (failCall == nullptr) {
        throw std::runtime_error("--fail needs radsel_failing_calls preloaded");
    }
    return CFaultRun(store, folder, failCall).Run();
}

bool RunKills(const CStore& store, const std::string& folder, int rounds, unsigned seed)
{
    bool right = true;
    for (std::size_t writers = 1; writers <= kWriters; ++writers) {
        right = CKillRun(store, folder, writers).Run(rounds, seed) && right;
    }
    return right;
}

int Run(const std::vector<std::string>& words)
{
    const std::string mode = words.size() > 1 ? words[1] : "";
    const int count = words.size() > 2 ? std::stoi(words[2]) : 0;
    const unsigned seed =
        words.size() > 3 ? static_cast<unsigned>(std::stoul(words[3])) : std::random_device()();
    const CTempFolder temporary;
    const std::string folder = temporary.Root();
    bool right = false;
    if (mode == "--fail") {
        right = RunFaults(Open(words[0], folder), folder);
    } else if (mode == "--kill" && count > 0) {
        right = RunKills(Open(words[0], folder), folder, count, seed);
    } else {
        std::cerr << "usage: radsel_store_faults <store> --fail | --kill <rounds> [<seed>]\n";
    }
    return right ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return Run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
