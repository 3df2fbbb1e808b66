// Every reader, list, dialog and plan operation on inputs of one, two, four and eight times a size:
// with twice the input an operation may take a little more than twice the work, as sorting does,
// and no more. What compares all with all, or copies all for each, fails here long before a user
// waits for it.

#include "tests/growth/growth.h"

#include <gtest/gtest.h>

#include <valgrind/callgrind.h>

#include <cstdlib>
#include <filesystem>
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

/// The sum of the instructions in what callgrind has written last, and away with that.
std::uint64_t TakeTotals()
{
    static int number = 0;
    const char* const prefix = std::getenv("RADSEL_GROWTH_COUNTS");
    const std::string path =
        std::string(prefix != nullptr ? prefix : "") + "." + std::to_string(++number);
    const std::string key = "totals: ";
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(key)) {
            std::filesystem::remove(path);
            return std::stoull(line.substr(key.size()));
        }
    }
    throw std::runtime_error("no counts in " + path);
}

class CCollecting
{
public:
    CCollecting() { CALLGRIND_TOGGLE_COLLECT; }
    ~CCollecting() { CALLGRIND_TOGGLE_COLLECT; }
    CCollecting(const CCollecting&) = delete;
    CCollecting& operator=(const CCollecting&) = delete;
};

} // namespace

void CWorkCount::Of(const std::function<void()>& work)
{
    {
        const CCollecting collecting;
        work();
    }
    CALLGRIND_DUMP_STATS;
    m_instructions += TakeTotals();
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
    static double Count(int size)
    {
        CWorkCount count;
        GetParam().run(size, count);
        return static_cast<double>(count.GetInstructions());
    }

    /// How much more the parts of the input behind the first take, for twice the input. What the
    /// first takes counts as what has to be done however little there is.
    static double GrowthOf(int size, double before, double after)
    {
        return 2.0 * (after / (2 * size - 1)) / (before / (size - 1));
    }

    /// Counts once at each size; the first doubling that takes too much, in words, or nothing.
    static std::string FindFault()
    {
        const CGrowthCase& growth = GetParam();
        // What has to be done however little there is would hide how the rest grows.
        const double fixed = Count(1);
        int size = growth.nSize;
        double before = Count(size) - fixed;
        std::printf("%-32s", growth.name);
        for (int i = 0; i < kDoublings; ++i, size *= 2) {
            const double after = Count(2 * size) - fixed;
            const double grown = GrowthOf(size, before, after);
            std::printf("%7.2f", grown);
            if (!(before > 0.0 && grown <= kMostADoubling)) {
                std::printf("\n");
                std::ostringstream fault;
                fault << growth.name << " of " << size << " " << growth.unit << " takes "
                      << long(before) << " instructions more than of one, of twice as many "
                      << long(after);
                return fault.str();
            }
            before = after;
        }
        std::printf("%13.0f and %9.0f for %d %s\n", fixed, before, size, growth.unit);
        return before >= kLeastShare * fixed
                   ? ""
                   : std::string("its input does not matter to ") + growth.name;
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
