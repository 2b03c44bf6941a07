// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "walker.h"

#include <QApplication>
#include <QHashSeed>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

using kitwright::walking::Coverage;
using kitwright::walking::Hands;
using kitwright::walking::Walker;
using kitwright::walking::WalkOrder;

constexpr const char* usage = "random_walk [--seed S] [--seeds COUNT] [--events N] [--trace]\n"
                              "Walks through the program at random, COUNT times, with the seeds S, S + 1, ...\n"
                              "Ends with 1, and the last events, when something does not hold.\n";

/// Whatever depends on the time of the day or on the machine's pace is made the same for each walk.
void makeRepeatable()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    QHashSeed::setDeterministicGlobalSeed();
}

void tellCoverage(const Coverage& coverage)
{
    std::printf("Windows shown:");
    for (const auto& [window, count] : coverage.windows())
        std::printf(" %s %zu", window.c_str(), count);
    const auto untouched = coverage.untouched();
    std::printf("\nControls and entries that have a name: %zu. Never touched: %zu\n", coverage.known(),
                untouched.size());
    for (const std::string& name : untouched)
        std::printf("  %s\n", name.c_str());
}

} // namespace

int main(int argc, char* argv[])
{
    WalkOrder order;
    std::uint64_t seeds = 1;
    for (int i = 1; i < argc; ++i) {
        const bool hasValue = i + 1 < argc;
        if (hasValue && std::strcmp(argv[i], "--seed") == 0)
            order.seed = std::strtoull(argv[++i], nullptr, 10);
        else if (hasValue && std::strcmp(argv[i], "--seeds") == 0)
            seeds = std::strtoull(argv[++i], nullptr, 10);
        else if (hasValue && std::strcmp(argv[i], "--events") == 0)
            order.events = std::strtoull(argv[++i], nullptr, 10);
        else if (std::strcmp(argv[i], "--trace") == 0)
            order.tracing = true;
        else
            return std::fputs(usage, stderr), 2;
    }
    makeRepeatable();
    QApplication application(argc, argv);
    QApplication::setDoubleClickInterval(Hands::doubleClickInterval);
    // A letter typed into a list begins a new search.
    QApplication::setKeyboardInputInterval(0);

    Coverage coverage;
    for (std::uint64_t i = 0; i < seeds; ++i, ++order.seed) {
        std::printf("Seed %llu\n", static_cast<unsigned long long>(order.seed));
        Walker walker(order, coverage);
        walker.run();
        walker.tell();
        std::fflush(stdout);
    }
    tellCoverage(coverage);
    return 0;
}
