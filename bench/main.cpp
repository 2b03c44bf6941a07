// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <limits>
#include <string_view>

namespace kitwright::bench {

namespace {

bool allKept = true;

double processorTime()
{
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

} // namespace

double timeOf(const std::function<void()>& work)
{
    const double before = processorTime();
    work();
    return processorTime() - before;
}

std::vector<double> quickest(int rounds, const std::vector<std::function<double()>>& cases)
{
    std::vector<double> times(cases.size(), std::numeric_limits<double>::max());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < cases.size(); ++i)
            times[i] = std::min(times[i], cases[i]());
    }
    return times;
}

void promise(double limit, const std::string& what, double seen)
{
    allKept = allKept && seen <= limit;
    std::printf("%-80s %8.2f  %8.2f%s\n", what.c_str(), seen, limit, seen <= limit ? "" : "  BROKEN");
    std::fflush(stdout);
}

} // namespace kitwright::bench

/// Measures all promises, or those of the groups that are named; ends with 1 when one of them is broken.
int main(int argc, char** argv)
{
    using namespace kitwright::bench;
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen").toUtf8());
    const QApplication application(argc, argv);
    // Memory comes first, while the heap holds nothing of the others.
    constexpr std::pair<std::string_view, void (*)()> groups[] = {
        {"memory", measureMemory}, {"colouring", measureColouring}, {"lists", measureLists},
        {"keys", measureKeys},     {"opening", measureOpening},     {"wizards", measureWizards},
    };
    std::printf("%-80s %8s  %8s\n", "what", "seen", "at most");
    for (const auto& [name, measure] : groups) {
        if (argc == 1 || std::find(argv + 1, argv + argc, name) != argv + argc)
            measure();
    }
    return allKept ? 0 : 1;
}
