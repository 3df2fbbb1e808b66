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
            m_medians[run.run_name.function_name] = run.GetAdjustedCPUTime();
        }
    }
}

bool CRatioReporter::PrintTable(const std::vector<RatioLine>& lines) const
{
    std::printf("%-46s %-44s %11s %11s %7s %7s\n", "what", "floor", "measured", "floor", "ratio",
                "reach");
    bool reached = true;
    for (const RatioLine& line : lines) {
        if (!m_medians.contains(line.key + "/measured") ||
            !m_medians.contains(line.key + "/floor")) {
            continue; // left out by a filter on the command line
        }
        const double measured = m_medians.at(line.key + "/measured");
        const double floor = m_medians.at(line.key + "/floor");
        const double ratio = measured / floor;
        reached = reached && ratio <= line.reach;
        std::printf("%-46s %-44s %8.1f us %8.1f us %6.2fx %6.2fx%s\n", line.what.c_str(),
                    line.floor.c_str(), measured / 1000.0, floor / 1000.0, ratio, line.reach,
                    ratio <= line.reach ? "" : "  missed");
    }
    return reached;
}
