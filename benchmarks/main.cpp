// Prints what has to be fast as ratios to a floor that is measured right after it, in several
// rounds and for each line in a process of its own. All times are CPU time. What lies beyond its
// reach is marked; with --strict the exit code tells it too.

#include "benchmarks/ratio_table.h"
#include "benchmarks/valve_file.h"
#include "platform/encoding.h"
#include "reference_host/prefs/host_settings.h"
#include "tests/support/temp_folder.h"
#include "tools/pretended_screen.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <regex>
#include <string>
#include <vector>

using namespace reference_host;

namespace {

/// The parse must not be more than linear in the size; the memory of a loaded file has a limit of
/// its own, from the size on at which the two megabytes of the program itself no longer matter.
/// Nodes that somebody looks at come on top: their links alone take as much as a third of the lines
/// that they tell of.
bool PrintValveFiles()
{
    constexpr double kLargestMemory = 1.3;
    constexpr std::size_t kLeastLimited = 50;
    constexpr std::size_t kMegabyte = 1'000'000;
    constexpr std::size_t kSizes[] = {10, 50, 100};
    double worst = 0.0;
    std::printf("valve file to nodes, by size\n");
    for (const std::size_t megabytes : kSizes) {
        CValveFile file(megabytes * kMegabyte);
        const double memory = MeasurePeakMemory(file, NodesSeen::groups);
        worst = megabytes < kLeastLimited ? worst : std::max(worst, memory);
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
    std::printf("peak memory of a loaded file of %zu MB and more is to stay under %.1f x%s\n",
                kLeastLimited, kLargestMemory, worst <= kLargestMemory ? "" : "  missed");
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

bool IsNamed(const std::vector<RatioLine>& lines, const std::string& key)
{
    return std::ranges::any_of(lines, [&](const RatioLine& line) { return line.key == key; });
}

/// A time that has no floor to be compared with is far from its reach, and fewer rounds tell it.
void RunRounds(const RatioLine& line, CRatioReporter& reporter)
{
    const int rounds = line.floor.empty() ? 3 : 9;
    for (int round = 0; round < rounds; ++round) {
        benchmark::RunSpecifiedBenchmarks(&reporter, "^" + line.key + "/(measured|floor)(/|$)");
    }
}

/// Runs some work in a process of its own, so that what it leaves of the memory tears that of no
/// other. False if it said so or did not come to its end.
bool RunApart(const std::function<bool()>& work)
{
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        std::exit(work() ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && status == EXIT_SUCCESS;
}

void RunLine(const RatioLine& line, CRatioReporter& reporter)
{
    const std::unique_ptr<std::FILE, decltype(&std::fclose)> times(std::tmpfile(), &std::fclose);
    const bool isDone = times && RunApart([&] {
                            RunRounds(line, reporter);
                            return reporter.WriteTimes(*times);
                        });
    if (isDone) {
        reporter.ReadTimes(*times);
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
         1.1},
        {"filter_taken", "filter pass, 2,000 rows taken", "assigning 2,000 rows to fresh ones",
         1.2},
        {"valve_file", "valve file of 50 MB to nodes", "read, find line ends, widen", 1.5},
        {"valve_fetch", "second fetch of a cached valve pair", "copying the two records", 1.2},
        {"dialog_keystroke", "keystroke to repainted grid, 2,000 rows", "painting the same rows",
         1.4, 8.0},
        {"dialog_opening", "opening the selection dialog, 2,000 rows", "", 0.0, 100.0},
        {"dialog_lists", "the same with 5,000 layers and 5,000 blocks", "", 0.0, 100.0},
        {"plan_sizing", "sizing a building of 2,000 rooms", "", 0.0, 500.0},
        {"plan_sizing_again", "sizing it anew", "", 0.0, 500.0},
        {"plan_pan", "panning a plan of 2,000 rooms, a frame", "", 0.0, 16.0},
        {"plan_pan_marked", "the same, every room marked", "", 0.0, 16.0},
        {"plan_pan_near", "the same, near enough to read texts", "", 0.0, 16.0},
        {"plan_zoom", "zooming there by a step", "", 0.0, 16.0},
        {"plan_change", "showing a change to one of its rooms", "", 0.0, 5.0},
        {"plan_floor", "showing it from nothing", "", 0.0, 500.0},
    };

    // Dialogs are painted without a screen, at the size of their templates, for a user who has
    // settings.
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const CPretendedScreen screen(kAmple, kAmple);
    const CTempFolder home;
    setenv("XDG_CONFIG_HOME", Utf8FromWide(home.Path()).c_str(), 1);
    StoreHostSetting(kSettingEnterAsTab, L"0");

    std::vector<std::string> arguments(argv, argv + argc);
    const bool isStrict = std::erase(arguments, "--strict") > 0;
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

    const bool filesReached = !IsNamed(lines, "valve_file") || RunApart(PrintValveFiles);
    CRatioReporter reporter;
    reporter.ReportContext({});
    for (const RatioLine& line : lines) {
        RunLine(line, reporter);
    }
    const Outcome outcome = reporter.PrintTable(lines);
    const bool isReached = filesReached && outcome == Outcome::reached;
    return outcome == Outcome::failed || (isStrict && !isReached) ? EXIT_FAILURE : EXIT_SUCCESS;
}
