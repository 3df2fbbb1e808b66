#pragma once

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <span>

/// A fuzz target by the name of its folder in tests/fuzz_corpus.
struct CFuzzTarget
{
    const char* lpszName;
    void (*run)(std::span<const std::uint8_t>);
    /// Fewer where each run writes files that must be on the disk before it goes on.
    int nMutations = 4000;

    /// Without it the name of a test would hold addresses, which change from run to run.
    friend void PrintTo(const CFuzzTarget& target, std::ostream* out) { *out << target.lpszName; }
};

/// Runs the target over its kept inputs and over its count of mutations of them, the same in every
/// run. An exception that leaves the target fails the running test.
void ReplayCorpus(const CFuzzTarget& target);
