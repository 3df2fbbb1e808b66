#include "ratio_table.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

bool CRatioReporter::ReportContext(const Context& context)
{
    PrintBasicContext(&GetErrorStream(), context);
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

double CRatioReporter::Fastest(const std::string& name) const
{
    return std::ranges::min(m_times.at(name));
}

double CRatioReporter::Median(const std::string& name) const
{
    std::vector<double> times = m_times.at(name);
    const auto middle = times.begin() + std::ssize(times) / 2;
    std::ranges::nth_element(times, middle);
    return *middle;
}

bool CRatioReporter::PrintTable(const std::vector<RatioLine>& lines) const
{
    std::printf("%-46s %-44s %14s %14s %7s %7s %8s\n", "what", "floor", "measured", "floor",
                "ratio", "reach", "limit");
    bool reached = !m_failed;
    for (const RatioLine& line : lines) {
        // A filter on the command line leaves some out.
        if (WasMeasured(line.key + "/measured") &&
            (line.floor.empty() || WasMeasured(line.key + "/floor"))) {
            reached = PrintLine(line) && reached;
        }
    }
    return reached;
}

bool CRatioReporter::PrintLine(const RatioLine& line) const
{
    const std::string name = line.key + "/measured";
    const double measured = line.floor.empty() ? Median(name) : Fastest(name);
    bool reached = true;
    std::printf("%-46s %-44s %11.1f us ", line.what.c_str(), line.floor.c_str(), measured / 1.0e3);
    if (line.floor.empty()) {
        std::printf("%14s %7s %7s", "", "", "");
    } else {
        const double floor = Fastest(line.key + "/floor");
        const double ratio = measured / floor;
        reached = ratio <= line.reach;
        std::printf("%11.1f us %6.2fx %6.2fx", floor / 1.0e3, ratio, line.reach);
    }
    if (line.milliseconds > 0.0) {
        reached = reached && Median(name) <= line.milliseconds * 1.0e6;
        std::printf(" %5.0f ms", line.milliseconds);
    }
    std::printf("%s\n", reached ? "" : "  missed");
    return reached;
}
