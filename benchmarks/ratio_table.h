#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

/// A line of the table: what is measured, against which floor, and the ratio to reach. The two
/// benchmarks of a line are registered as "<key>/measured" and "<key>/floor". A line without a
/// floor has an empty one and a reach in milliseconds alone.
struct RatioLine
{
    std::string key;
    std::string what;
    std::string floor;
    double reach = 0.0;
    /// What the measured one may take by itself; 0 if nothing says so.
    double milliseconds = 0.0;
};

/// What a run came to.
enum class Outcome
{
    reached,
    /// A ratio or a time lies beyond its reach.
    beyond,
    /// A line was not measured, or a benchmark told of an error.
    failed
};

/// Collects the times of a run, which measures both sides of each line in round after round, and
/// prints them as ratios. A ratio is the median of the rounds' own: the machine may run at a third
/// of its speed for seconds, which meets both sides of a round alike.
class CRatioReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Hands times over from the process that has measured them. False if a benchmark told of an
    /// error or the file cannot be written.
    bool WriteTimes(std::FILE& file) const;
    /// Takes over what WriteTimes() has written.
    void ReadTimes(std::FILE& file);

    /// Prints the table, times as medians, and marks what lies beyond its reach. The last column
    /// tells how steady a line is: half of the rounds lie that near to the median.
    Outcome PrintTable(const std::vector<RatioLine>& lines) const;

private:
    /// False if a side of the line is missing in any round.
    bool IsComplete(const RatioLine& line) const;
    /// False if the line is beyond its reach.
    bool PrintLine(const RatioLine& line) const;
    const std::vector<double>& Times(const std::string& name) const { return m_times.at(name); }
    std::vector<double> Ratios(const std::string& key) const;

    /// CPU times of the rounds in nanoseconds by benchmark name.
    std::map<std::string, std::vector<double>> m_times;
    bool m_hasContext = false;
    bool m_failed = false;
};
