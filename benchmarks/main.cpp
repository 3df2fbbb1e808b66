// Prints what has to be fast as ratios to a floor that is measured right after it, in several
// rounds. All times are CPU time. The exit code tells whether every ratio and every limit was
// reached.

#include "benchmarks/ratio_table.h"
#include "benchmarks/valve_file.h"
#include "tools/pretended_screen.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <regex>
#include <string>
#include <vector>

namespace {

/// The parse must not be more than linear in the size; the memory of a loaded file has a limit of
/// its own. Nodes that somebody looks at come on top: their links alone take as much as a third of
/// the lines that they tell of.
bool PrintValveFiles()
{
    constexpr double kLargestMemory = 1.3;
    constexpr std::size_t kMegabyte = 1'000'000;
    constexpr std::size_t kSizes[] = {10, 50, 100};
    double worst = 0.0;
    std::printf("valve file to nodes, by size\n");
    for (const std::size_t megabytes : kSizes) {
        CValveFile file(megabytes * kMegabyte);
        const double memory = MeasurePeakMemory(file, NodesSeen::groups);
        worst = std::max(worst, memory);
        std::printf("%5zu MB   peak memory %.2f x the file loaded, %.2f x with all articles seen, "
                    "%.2f x with all nodes\n",
                    megabytes, memory, MeasurePeakMemory(file, NodesSeen::articles),
                    MeasurePeakMemory(file, NodesSeen::all));
    }
    for (const std::size_t megabytes : kSizes) {
        CValveFile file(megabytes * kMegabyte);
        const double milliseconds = 1000.0 * MeasureLoad(file);
        std::printf("%5zu MB %8.0f ms %8.2f ms/MB\n", megabytes, milliseconds,
                    milliseconds / static_cast<double>(megabytes));
    }
    std::printf("peak memory of a loaded file is to stay under %.1f x%s\n", kLargestMemory,
                worst <= kLargestMemory ? "" : "  missed");
    std::printf("\n");
    return worst <= kLargestMemory;
}

/// Leaves the lines that the filter of the command line names; all of them without one.
void KeepNamed(std::vector<RatioLine>& lines)
{
    const std::regex filter(benchmark::GetBenchmarkFilter());
    std::erase_if(lines,
                  [&](const RatioLine& line) { return !std::regex_search(line.key, filter); });
}

void RunRounds(const std::vector<RatioLine>& lines, CRatioReporter& reporter)
{
    constexpr int kRounds = 11;
    for (int round = 0; round < kRounds; ++round) {
        for (const RatioLine& line : lines) {
            benchmark::RunSpecifiedBenchmarks(&reporter, "^" + line.key + "/(measured|floor)(/|$)");
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
#ifndef __OPTIMIZE__
    std::fputs("Warning: built without optimisation, the figures mean nothing.\n", stderr);
#endif
    std::vector<RatioLine> lines = {
        {"filter_none", "filter pass, 100,000 rows, none taken", "plain loop over the same chain",
         1.5},
        {"filter_taken", "filter pass, 2,000 rows taken", "assigning 2,000 rows to fresh ones",
         1.5},
        {"valve_file", "valve file of 50 MB to nodes", "read, find line ends, widen", 1.5},
        {"valve_fetch", "second fetch of a cached valve pair", "copying the two records", 1.5},
        {"dialog_keystroke", "keystroke to repainted grid, 2,000 rows", "painting the same rows",
         2.0, 16.0},
        {"dialog_opening", "opening the selection dialog, 2,000 rows", "", 0.0, 150.0},
        {"plan_sizing", "sizing a building of 2,000 rooms", "", 0.0, 5000.0},
        {"plan_sizing_again", "sizing it anew", "", 0.0, 5000.0},
        {"plan_pan", "panning a plan of 2,000 rooms, a frame", "", 0.0, 16.0},
        {"plan_pan_marked", "the same, every room marked", "", 0.0, 16.0},
        {"plan_pan_near", "the same, near enough to read texts", "", 0.0, 16.0},
        {"plan_zoom", "zooming there by a step", "", 0.0, 16.0},
        {"plan_change", "showing a change to one of its rooms", "", 0.0, 5.0},
        {"plan_floor", "showing it from nothing", "", 0.0, 500.0},
    };

    // Dialogs are painted without a screen, at the size of their templates.
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const CPretendedScreen screen(kAmple, kAmple);

    std::vector<std::string> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, "--benchmark_min_time=0.1");
    std::vector<char*> pointers;
    for (std::string& argument : arguments) {
        pointers.push_back(argument.data());
    }
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) {
        return EXIT_FAILURE;
    }

    KeepNamed(lines);
    if (lines.empty()) {
        std::fputs("The filter names no line of the table.\n", stderr);
        return EXIT_FAILURE;
    }

    // Memory first, while the process has not grown yet: a child inherits that of its parent.
    const bool filesReached = PrintValveFiles();

    CRatioReporter reporter;
    RunRounds(lines, reporter);
    return reporter.PrintTable(lines) && filesReached ? EXIT_SUCCESS : EXIT_FAILURE;
}
