// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "checks.h"
#include "moves.h"
#include "stage.h"
#include "step.h"

#include <QObject>

#include <deque>
#include <vector>

namespace kitwright::walking {

struct WalkOrder {
    std::uint64_t seed = 1;
    std::size_t events = 20'000;
    bool tracing = false;
};

/// A walk through the program: stories with noise in between, until the events are done; then every window is closed.
/// Each event is one of the event loop that runs just then, so that a walk goes on inside a modal window, and ends it.
class Walker final : public QObject {
public:
    Walker(const WalkOrder& order, Coverage& coverage);

    void run();

    /// Prints what happened.
    void tell() const;

private:
    void post();
    void step();
    void take(Step step);
    Step next();
    void plan();
    void goHome();
    bool mainIsClosed();
    void keepActive();
    void letEventsRun();
    void checkNowAndThen();

    const std::size_t m_events;
    Stage m_stage;
    Moves m_moves;
    Checks m_checks;
    std::deque<Step> m_plan;
    bool m_isPosted = false;
    bool m_isHeld = false; ///< A dialog of the desktop is open, or the program's events run alone.
    int m_stepsAfterClose = 0;
    std::map<std::string, std::size_t> m_windows; ///< Events that each window had while it was active.
    std::size_t m_nextCheck = 0;                  ///< Event.
    std::size_t m_nextUndo = 0;
    std::vector<long> m_megabytes; ///< At the end of each quarter.
};

} // namespace kitwright::walking
