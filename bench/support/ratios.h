// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kitwright::bench {

/// Processor time of this thread, in seconds.
double processorTime();

/// A promise of speed: how the time of one case relates to that of another in the same run.
struct Ratio {
    std::string what;
    std::string numerator;   ///< Name of a case.
    std::string denominator; ///< Name of a case.
    double limit = 0;
    bool atLeast = false; ///< The ratio must reach the limit; otherwise it must not pass it.
};

/// The smallest processor time of each case of a run, in nanoseconds: other work on the machine does not count.
class Times final : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;
    double of(const std::string& name) const;
    void note(const std::string& name, double nanoseconds) { m_times[name] = nanoseconds; }

private:
    std::map<std::string, double> m_times;
};

/// Runs the registered cases and prints a table of the ratios; returns the program's exit code, 1 when a promise
/// that was measured is broken.
int runAndCompare(int argc, char** argv, const std::vector<Ratio>& ratios);

} // namespace kitwright::bench
