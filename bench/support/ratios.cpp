// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/ratios.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace kitwright::bench {

double processorTime()
{
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

void Times::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.error_occurred || run.run_type != Run::RT_Iteration)
            continue;
        const double nanoseconds =
            (run.run_name.time_type.empty() ? run.GetAdjustedCPUTime() : run.GetAdjustedRealTime()) * 1e9
            / benchmark::GetTimeUnitMultiplier(run.time_unit);
        const auto known = m_times.find(run.run_name.function_name);
        if (known == m_times.end())
            m_times.emplace(run.run_name.function_name, nanoseconds);
        else
            known->second = std::min(known->second, nanoseconds);
    }
    ConsoleReporter::ReportRuns(runs);
}

double Times::of(const std::string& name) const
{
    const auto known = m_times.find(name);
    return known == m_times.end() ? 0 : known->second;
}

int runAndCompare(int argc, char** argv, const std::vector<Ratio>& ratios)
{
    // The repetitions of all cases take turns, so that a busy minute of the machine falls on all of them.
    std::string interleave = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, interleave.data());
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    Times times;
    benchmark::RunSpecifiedBenchmarks(&times);

    bool kept = true;
    std::printf("\n%-66s %8s  %s\n", "ratio", "seen", "promised");
    for (const Ratio& ratio : ratios) {
        const double numerator = times.of(ratio.numerator);
        const double denominator = times.of(ratio.denominator);
        if (numerator <= 0 || denominator <= 0)
            continue;
        const double seen = numerator / denominator;
        const bool good = ratio.limit <= 0 || (ratio.atLeast ? seen >= ratio.limit : seen <= ratio.limit);
        kept = kept && good;
        if (ratio.limit > 0)
            std::printf("%-66s %8.2f  %s %.2f%s\n", ratio.what.c_str(), seen,
                        ratio.atLeast ? ">=" : "<=", ratio.limit, good ? "" : "  BROKEN");
        else
            std::printf("%-66s %8.2f  -\n", ratio.what.c_str(), seen);
    }
    return kept ? 0 : 1;
}

} // namespace kitwright::bench
