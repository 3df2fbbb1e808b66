// Every reader, list, dialog and plan operation on inputs of one, two, four and eight times a size:
// with twice the input an operation may take a little more than twice the work, as sorting does,
// and no more. What compares all with all, or copies all for each, fails here long before a user
// waits for it.

#include "tests/growth/growth.h"

#include <gtest/gtest.h>

#include <valgrind/valgrind.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace {

constexpr double kMostADoubling = 2.3;
/// The largest input takes more work than the smallest by this part of that at least, or it has not
/// reached the operation.
constexpr double kLeastShare = 0.02;
constexpr int kDoublings = 3;
constexpr int kTries = 3;

/// Lets callgrind write to its log what it has counted so far. That takes it no time; a file of its
/// own would, and more the longer the program runs.
void TellCount()
{
    VALGRIND_MONITOR_COMMAND("status internal");
}

/// What it has told since this was asked last: the instructions of all threads, time by time.
std::vector<std::uint64_t> TakeCounts()
{
    const char* const path = std::getenv("RADSEL_GROWTH_LOG");
    static std::ifstream log(path != nullptr ? path : "");
    log.clear();
    std::vector<std::uint64_t> counts;
    for (std::string line; std::getline(log, line);) {
        if (line.starts_with("instrumentation:")) {
            counts.push_back(0);
        }
        unsigned thread = 0;
        unsigned long long events = 0;
        if (std::sscanf(line.c_str(), "events-%u: %llu", &thread, &events) == 2) {
            counts.at(counts.size() - 1) += events;
        }
    }
    return counts;
}

} // namespace

void CWorkCount::Of(const std::function<void()>& work, const std::string& step)
{
    // What was told before work that threw is of no use any more.
    TakeCounts();
    TellCount();
    work();
    TellCount();
    const std::vector<std::uint64_t> counts = TakeCounts();
    if (counts.size() != 2 || counts[0] == 0 || counts[1] < counts[0]) {
        throw std::runtime_error("callgrind has not told what it counts");
    }
    m_instructions[step] += counts[1] - counts[0];
}

void Require(bool done)
{
    if (!done) {
        throw std::logic_error("the operation did not do its work");
    }
}

void PrintTo(const CGrowthCase& growth, std::ostream* out)
{
    *out << growth.name;
}

namespace {

class Growth : public testing::TestWithParam<CGrowthCase>
{
protected:
    using Counts = std::map<std::string, std::uint64_t>;

    static Counts Count(int size)
    {
        CWorkCount count;
        GetParam().run(size, count);
        return count.GetInstructions();
    }

    /// How much more the parts of the input behind the first take, for twice the input. What the
    /// first takes counts as what has to be done however little there is.
    static double GrowthOf(int size, double before, double after)
    {
        return 2.0 * (after / (2 * size - 1)) / (before / (size - 1));
    }

    /// Counts once at each size; what takes too much, in words, or nothing.
    static std::string FindFault()
    {
        // What has to be done however little there is would hide how the rest grows.
        const Counts fixed = Count(1);
        Require(!fixed.empty());
        std::vector<Counts> counted;
        for (int i = 0; i <= kDoublings; ++i) {
            counted.push_back(Count(GetParam().nSize << i));
        }
        std::string faults;
        for (const auto& [step, instructions] : fixed) {
            std::vector<double> more;
            for (const Counts& counts : counted) {
                more.push_back(static_cast<double>(counts.at(step)) -
                               static_cast<double>(instructions));
            }
            const std::string name =
                step.empty() ? GetParam().name : GetParam().name + (" " + step);
            faults += FindFault(name, static_cast<double>(instructions), more);
        }
        return faults;
    }

    /// The first doubling that takes too much, of what each size takes more than the fixed work.
    static std::string FindFault(const std::string& name, double fixed,
                                 const std::vector<double>& more)
    {
        std::printf("%-32s", name.c_str());
        int size = GetParam().nSize;
        std::ostringstream fault;
        for (std::size_t i = 1; i < more.size() && fault.view().empty(); ++i, size *= 2) {
            const double grown = GrowthOf(size, more[i - 1], more[i]);
            std::printf("%7.2f", grown);
            if (!(more[i - 1] > 0.0 && grown <= kMostADoubling)) {
                fault << name << " of " << size << " " << GetParam().unit << " takes "
                      << long(more[i - 1]) << " instructions more than of one, of twice as many "
                      << long(more[i]) << "\n";
            }
        }
        std::printf("%13.0f and %9.0f for %d %s\n", fixed, more.back(),
                    GetParam().nSize << kDoublings, GetParam().unit);
        if (fault.view().empty() && more.back() < kLeastShare * fixed) {
            fault << "its input does not matter to " << name << "\n";
        }
        return fault.str();
    }
};

TEST_P(Growth, StaysAtMostLinear)
{
    ASSERT_TRUE(RUNNING_ON_VALGRIND) << "run by ctest, which starts it under callgrind";
    // What is done only once in a process, or once for the first page, row or branch that is too
    // many.
    Count(2 * GetParam().nSize);
    // Memory that is tidied up now and then adds to a count, but not at the same place three times.
    std::string fault;
    for (int i = 0; i < kTries && (i == 0 || !fault.empty()); ++i) {
        fault = FindFault();
    }
    EXPECT_EQ(fault, "");
}

std::string NameOf(const testing::TestParamInfo<CGrowthCase>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Readers, Growth, testing::ValuesIn(ReaderCases()), NameOf);
INSTANTIATE_TEST_SUITE_P(Lists, Growth, testing::ValuesIn(ListCases()), NameOf);
INSTANTIATE_TEST_SUITE_P(Dialogs, Growth, testing::ValuesIn(DialogCases()), NameOf);
INSTANTIATE_TEST_SUITE_P(Plan, Growth, testing::ValuesIn(PlanCases()), NameOf);
INSTANTIATE_TEST_SUITE_P(Window, Growth, testing::ValuesIn(WindowCases()), NameOf);

} // namespace
