#include "benchmarks/ratio_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <functional>
#include <iterator>
#include <utility>

namespace {

/// The value below which that part of the values lies.
double Quantile(std::vector<double> values, double part)
{
    const auto last = static_cast<double>(values.size() - 1);
    const auto place = values.begin() + std::lround(part * last);
    std::ranges::nth_element(values, place);
    return *place;
}

double Median(const std::vector<double>& values)
{
    return Quantile(values, 0.5);
}

/// Half the room that the middle half of the values takes, in percent of the median.
double Spread(const std::vector<double>& values)
{
    return 50.0 * (Quantile(values, 0.75) - Quantile(values, 0.25)) / Median(values);
}

} // namespace

bool CRatioReporter::ReportContext(const Context& context)
{
    if (!std::exchange(m_hasContext, true)) {
        PrintBasicContext(&GetErrorStream(), context);
    }
    return true;
}

void CRatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.error_occurred) {
            std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(),
                         run.error_message.c_str());
            m_failed = true;
        } else if (run.run_type == Run::RT_Iteration) {
            // Whatever unit the run prints in, this is kept in nanoseconds.
            m_times[run.run_name.function_name].push_back(
                run.GetAdjustedCPUTime() * 1.0e9 / benchmark::GetTimeUnitMultiplier(run.time_unit));
        }
    }
}

bool CRatioReporter::WriteTimes(std::FILE& file) const
{
    for (const auto& [name, times] : m_times) {
        for (const double time : times) {
            std::fprintf(&file, "%s %.17g\n", name.c_str(), time);
        }
    }
    return !m_failed && std::fflush(&file) == 0;
}

void CRatioReporter::ReadTimes(std::FILE& file)
{
    std::rewind(&file);
    std::array<char, 100> name;
    double time = 0.0;
    while (std::fscanf(&file, "%99s %lf", name.data(), &time) == 2) {
        m_times[name.data()].push_back(time);
    }
}

std::vector<double> CRatioReporter::Ratios(const std::string& key) const
{
    const std::vector<double>& floor = Times(key + "/floor");
    std::vector<double> ratios = Times(key + "/measured");
    std::ranges::transform(ratios, floor, ratios.begin(), std::divides());
    return ratios;
}

bool CRatioReporter::IsComplete(const RatioLine& line) const
{
    const auto rounds = [this](const std::string& name) {
        const auto times = m_times.find(name);
        return times != m_times.end() ? times->second.size() : 0;
    };
    const std::size_t measured = rounds(line.key + "/measured");
    return measured > 0 && (line.floor.empty() || rounds(line.key + "/floor") == measured);
}

Outcome CRatioReporter::PrintTable(const std::vector<RatioLine>& lines) const
{
    std::printf("%-46s %-34s %12s %12s %7s %7s %8s %8s\n", "what", "floor", "measured", "floor",
                "ratio", "reach", "reach", "steady");
    Outcome outcome = m_failed ? Outcome::failed : Outcome::reached;
    for (const RatioLine& line : lines) {
        if (!IsComplete(line)) {
            std::printf("%-46s not measured\n", line.what.c_str());
            outcome = Outcome::failed;
        } else if (!PrintLine(line)) {
            outcome = std::max(outcome, Outcome::beyond);
        }
    }
    return outcome;
}

bool CRatioReporter::PrintLine(const RatioLine& line) const
{
    const std::vector<double>& times = Times(line.key + "/measured");
    const double measured = Median(times);
    bool reached = true;
    double spread = Spread(times);
    std::printf("%-46s %-34s %9.1f us ", line.what.c_str(), line.floor.c_str(), measured / 1.0e3);
    if (line.floor.empty()) {
        std::printf("%12s %7s %7s", "", "", "");
    } else {
        const double floor = Median(Times(line.key + "/floor"));
        const std::vector<double> ratios = Ratios(line.key);
        reached = Median(ratios) <= line.reach;
        spread = Spread(ratios);
        std::printf("%9.1f us %6.2fx %6.2fx", floor / 1.0e3, Median(ratios), line.reach);
    }
    if (line.milliseconds > 0.0) {
        reached = reached && measured <= line.milliseconds * 1.0e6;
        std::printf(" %5.0f ms", line.milliseconds);
    } else {
        std::printf(" %8s", "");
    }
    std::printf(" +-%4.1f %%%s\n", spread, reached ? "" : "  beyond its reach");
    return reached;
}
