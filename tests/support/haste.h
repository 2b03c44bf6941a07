// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/running_application.h"
#include "support/scenario.h"

#include <random>

namespace kitwright::testing {

/// Hasty hands: clicks, keys, typing, wheel, drags, resizes and closed windows, by a seed. They enter at the windows as
/// from a desktop, so that modal windows and open menus decide where they end, and do not wait for the program to
/// answer. Dialogs without an answer get random ones. The program is never ended.
class Haste : public QObject {
public:
    Haste(RunningApplication& app, unsigned seed);

    /// Does some events, and closes the menus and modal windows that came with them.
    void run(int events);

private:
    std::string answer(const std::string& dialog);
    bool isDone() const;
    void post();
    void step();
    void act(QWidget& window);
    void leave(QWidget& window);
    QWidget* someWindow();

    int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

    template <class Container>
    const auto& any(const Container& container)
    {
        const auto size = std::size(container);
        return container[static_cast<decltype(size)>(m_random() % static_cast<unsigned>(size))];
    }

    RunningApplication& m_app;
    std::mt19937 m_random;
    const std::vector<Cells> m_table = scenarioLines("tables/haste.txt"); ///< Keys, texts and paths.
    QWidget* m_outer = nullptr; ///< The modal window that was open before.
    int m_left = 0;             ///< Events that are still to come.
    bool m_isPosted = false;
    bool m_isDragging = false;
    bool m_isLeaving = false;
};

} // namespace kitwright::testing
