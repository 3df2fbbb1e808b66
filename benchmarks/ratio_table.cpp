#include "benchmarks/ratio_table.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <iterator>
#include <utility>

namespace {

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ssize(values) / 2;
    std::ranges::nth_element(values, middle);
    return *middle;
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

double CRatioReporter::MedianRatio(const std::string& key) const
{
    const std::vector<double>& floor = Times(key + "/floor");
    std::vector<double> ratios = Times(key + "/measured");
    std::ranges::transform(ratios, floor, ratios.begin(), std::divides());
    return Median(std::move(ratios));
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

bool CRatioReporter::PrintTable(const std::vector<RatioLine>& lines) const
{
    std::printf("%-46s %-44s %14s %14s %7s %7s %8s\n", "what", "floor", "measured", "floor",
                "ratio", "reach", "limit");
    bool reached = !m_failed;
    for (const RatioLine& line : lines) {
        if (!IsComplete(line)) {
            std::printf("%-46s not measured\n", line.what.c_str());
            reached = false;
            continue;
        }
        reached = PrintLine(line) && reached;
    }
    return reached;
}

bool CRatioReporter::PrintLine(const RatioLine& line) const
{
    const double measured = Median(Times(line.key + "/measured"));
    bool reached = true;
    std::printf("%-46s %-44s %11.1f us ", line.what.c_str(), line.floor.c_str(), measured / 1.0e3);
    if (line.floor.empty()) {
        std::printf("%14s %7s %7s", "", "", "");
    } else {
        const double floor = Median(Times(line.key + "/floor"));
        const double ratio = MedianRatio(line.key);
        reached = ratio <= line.reach;
        std::printf("%11.1f us %6.2fx %6.2fx", floor / 1.0e3, ratio, line.reach);
    }
    if (line.milliseconds > 0.0) {
        reached = reached && measured <= line.milliseconds * 1.0e6;
        std::printf(" %5.0f ms", line.milliseconds);
    }
    std::printf("%s\n", reached ? "" : "  missed");
    return reached;
}
