#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

/// Counts the machine instructions of a piece of work. That is exact and the same on every machine
/// that is as busy as it likes, and sees all that runs in the process: ours, the toolkit's, the
/// standard library's, copies and comparisons that allocate nothing included. The program has to
/// run under callgrind (tests.cmake).
class CWorkCount
{
public:
    /// Runs the work and adds its instructions. What is done one after the other in the same window
    /// counts under names of its own.
    void Of(const std::function<void()>& work, const std::string& step = "");

    const std::map<std::string, std::uint64_t>& GetInstructions() const { return m_instructions; }

private:
    std::map<std::string, std::uint64_t> m_instructions;
};

/// An operation on an input of any size from 1 on.
struct CGrowthCase
{
    /// Part of the test's name.
    const char* name;
    /// What the input is counted in.
    const char* unit;
    /// The smallest input that counts.
    int nSize;
    /// Prepares an input of that size and counts the operation on it.
    std::function<void(int size, CWorkCount& count)> run;
};

void PrintTo(const CGrowthCase& growth, std::ostream* out);

std::vector<CGrowthCase> ReaderCases();
std::vector<CGrowthCase> ListCases();
std::vector<CGrowthCase> DialogCases();
std::vector<CGrowthCase> PlanCases();
std::vector<CGrowthCase> WindowCases();

/// `part(0)` to `part(count - 1)` behind each other.
template <class PART>
std::string Repeated(int count, PART part)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += part(i);
    }
    return text;
}

/// Throws std::logic_error unless the operation did what it is measured for.
void Require(bool done);
