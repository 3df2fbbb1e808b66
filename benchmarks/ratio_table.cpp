#include "ratio_table.h"

#include <cstdio>

bool CRatioReporter::ReportContext(const Context& context)
{
    PrintBasicContext(&GetErrorStream(), context);
    return true;
}

void CRatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median") {
            // Whatever unit the run prints in, this is kept in nanoseconds.
            m_medians[run.run_name.function_name] =
                run.GetAdjustedCPUTime() * 1.0e9 / benchmark::GetTimeUnitMultiplier(run.time_unit);
        }
    }
}

double CRatioReporter::Median(const std::string& name) const
{
    const auto found = m_medians.find(name);
    return found != m_medians.end() ? found->second : 0.0;
}

bool CRatioReporter::PrintTable(const std::vector<RatioLine>& lines) const
{
    std::printf("%-46s %-44s %14s %14s %7s %7s %8s\n", "what", "floor", "measured", "floor",
                "ratio", "reach", "limit");
    bool reached = true;
    for (const RatioLine& line : lines) {
        if (Median(line.key + "/measured") > 0.0 &&
            (line.floor.empty() || Median(line.key + "/floor") > 0.0)) {
            reached = PrintLine(line) && reached;
        }
    }
    return reached;
}

bool CRatioReporter::PrintLine(const RatioLine& line) const
{
    const double measured = Median(line.key + "/measured");
    bool reached = true;
    std::printf("%-46s %-44s %11.1f us ", line.what.c_str(), line.floor.c_str(), measured / 1.0e3);
    if (line.floor.empty()) {
        std::printf("%14s %7s %7s", "", "", "");
    } else {
        const double floor = Median(line.key + "/floor");
        const double ratio = measured / floor;
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
