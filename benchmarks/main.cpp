// Prints what has to be fast as ratios to a floor that is measured in the same run. The pairs run
// interleaved, so that a drift of the machine's speed meets both sides. The table quotes medians of
// CPU time. The exit code tells whether every ratio was reached.

#include "ratio_table.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

int main(int argc, char** argv)
{
#ifndef __OPTIMIZE__
    std::fputs("Warning: built without optimisation, the figures mean nothing.\n", stderr);
#endif
    const std::vector<RatioLine> lines = {
        {"filter_none", "filter pass, 100,000 rows, none taken", "plain loop over the same chain",
         1.5},
        {"filter_taken", "filter pass, 2,000 rows taken", "assigning 2,000 rows to fresh ones",
         1.5},
    };

    std::vector<std::string> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1,
                     {"--benchmark_repetitions=15", "--benchmark_min_time=0.1",
                      "--benchmark_enable_random_interleaving=true"});
    std::vector<char*> pointers;
    for (std::string& argument : arguments) {
        pointers.push_back(argument.data());
    }
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) {
        return EXIT_FAILURE;
    }

    CRatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.PrintTable(lines) ? EXIT_SUCCESS : EXIT_FAILURE;
}
