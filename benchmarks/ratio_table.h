#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// A line of the table: what is measured, against which floor, and the ratio to reach. The two
/// benchmarks of a line are registered as "<key>/measured" and "<key>/floor". A line without a
/// floor has an empty one and a limit in milliseconds alone.
struct RatioLine
{
    std::string key;
    std::string what;
    std::string floor;
    double reach = 0.0;
    /// What the measured one may take by itself; 0 if nothing says so.
    double milliseconds = 0.0;
};

/// Collects the times of a run and prints them as ratios. Pairs are compared by the fastest
/// repetition of either side: what makes the others slower is the machine, which may run at half
/// its speed for seconds. Limits hold for the median.
class CRatioReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Prints the table; false if a ratio or a time lies above what is to be reached, or if a
    /// benchmark told of an error.
    bool PrintTable(const std::vector<RatioLine>& lines) const;

private:
    bool PrintLine(const RatioLine& line) const;
    bool WasMeasured(const std::string& name) const { return m_times.contains(name); }
    double Fastest(const std::string& name) const;
    double Median(const std::string& name) const;

    /// CPU times of the repetitions in nanoseconds by benchmark name.
    std::map<std::string, std::vector<double>> m_times;
    bool m_failed = false;
};
