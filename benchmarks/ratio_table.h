#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// A line of the table: what is measured, against which floor, and the ratio to reach.
/// The two benchmarks of a line are registered as "<key>/measured" and "<key>/floor".
struct RatioLine
{
    std::string key;
    std::string what;
    std::string floor;
    double reach;
};

/// Collects the medians of a run and prints them as ratios.
class CRatioReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Prints the table; false if a ratio lies above what is to be reached.
    bool PrintTable(const std::vector<RatioLine>& lines) const;

private:
    /// Median of the CPU time in nanoseconds by benchmark name.
    std::map<std::string, double> m_medians;
};
