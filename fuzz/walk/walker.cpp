// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "walker.h"

#include "noise.h"
#include "stories.h"

#include <QApplication>
#include <QScopedValueRollback>

#include <cstdio>

namespace kitwright::walking {

namespace {

constexpr std::size_t mostText = 200'000; // Bytes; a longer document is emptied.
constexpr std::size_t checkEvery = 50;    // Events.
constexpr std::size_t undoEvery = 2'500;
constexpr std::size_t quarters = 4;

void print(const char* heading, const std::map<std::string, std::size_t>& counts)
{
    std::printf("  %s:", heading);
    const char* separator = " ";
    for (const auto& [what, count] : counts) {
        std::printf("%s%s %zu", separator, what.c_str(), count);
        separator = ", ";
    }
    std::printf("\n");
}

} // namespace

Walker::Walker(const WalkOrder& order, Coverage& coverage)
    : m_events(order.events),
      m_stage(order.seed, order.tracing, coverage, [this] { letEventsRun(); }),
      m_moves(m_stage),
      m_checks(m_stage)
{
}

void Walker::run()
{
    do {
        m_stepsAfterClose = 0;
        m_plan.clear();
        post();
        m_stage.start();
        QApplication::exec();
        m_stage.files.checkDisk();
        if (m_stage.hands.isDown())
            m_stage.hands.release(nullptr, {});
        m_stage.end();
    } while (m_stage.record.events() < m_events);
}

void Walker::post()
{
    if (m_isPosted)
        return;
    m_isPosted = true;
    QMetaObject::invokeMethod(this, &Walker::step, Qt::QueuedConnection);
}

void Walker::step()
{
    m_isPosted = false;
    // The step comes after what holds it.
    if (m_isHeld)
        return;
    post();
    if (mainIsClosed())
        return;
    if (m_stage.record.events() >= m_events) {
        goHome();
        return;
    }
    keepActive();
    // Hasty hands do not wait for the window to answer.
    constexpr std::size_t atOnce = 15; // Percent.
    do
        take(next());
    while (m_stage.chance.percent(atOnce) && m_stage.record.events() < m_events && m_stage.main().isVisible());
    if (m_stage.chance.percent(atOnce))
        letEventsRun();
}

void Walker::take(Step step)
{
    const QWidget* window = QApplication::activeWindow();
    ++m_windows[window ? fromQt(window->objectName()) : "none"];
    m_stage.record.begin(step.kind, step.what);
    step.act();
    m_checks.afterEvent();
    checkNowAndThen();
}

Step Walker::next()
{
    constexpr std::size_t disturbances = 12; // Percent.
    if (m_plan.empty()) {
        plan();
    } else if (!m_stage.hands.isDown() && m_stage.chance.percent(disturbances)) {
        Steps steps = noise(m_stage, m_moves);
        m_plan.insert(m_plan.begin(), steps.begin(), steps.end());
    }
    Step step = std::move(m_plan.front());
    m_plan.pop_front();
    return step;
}

void Walker::plan()
{
    constexpr std::size_t stories = 45; // Percent.
    const bool onlyMain = QApplication::activeModalWidget() == nullptr && !QApplication::activePopupWidget();
    Steps steps;
    if (m_stage.document().size() > mostText && onlyMain)
        steps = shorten(m_stage, m_moves);
    else if (m_stage.files.hasLargeTable() && onlyMain)
        steps = leave(m_stage, m_moves);
    else if (onlyMain && m_stage.main().isVisible() && m_stage.chance.percent(stories))
        steps = story(m_stage, m_moves);
    else
        steps = noise(m_stage, m_moves);
    m_plan.assign(steps.begin(), steps.end());
}

/// Closes what is open from the top, the main window last.
void Walker::goHome()
{
    m_stage.dialogs.obey();
    if (m_stage.hands.isDown())
        m_stage.hands.release(nullptr, {});
    else if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    else if (QWidget* modal = QApplication::activeModalWidget())
        modal->close();
    else
        m_stage.main().close();
}

/// True from the moment on at which the main window is closed, which has to be the program's last.
bool Walker::mainIsClosed()
{
    constexpr int patience = 10;
    if (m_stage.main().isVisible() || !m_stage.reachableWindows().isEmpty()) {
        m_stepsAfterClose = 0;
        return false;
    }
    if (++m_stepsAfterClose > patience)
        m_stage.record.fail("the main window is closed, but the program goes on");
    return true;
}

/// A window manager gives the keyboard to a window that is left when another one closes.
void Walker::keepActive()
{
    const QList<QWidget*> windows = m_stage.reachableWindows();
    if (QApplication::activeWindow() || QApplication::activePopupWidget() || windows.isEmpty())
        return;
    windows.front()->activateWindow();
    letEventsRun();
}

/// Has the program handle all that waits, without a further step.
void Walker::letEventsRun()
{
    {
        const QScopedValueRollback held(m_isHeld, true);
        QApplication::processEvents();
    }
    post();
}

void Walker::checkNowAndThen()
{
    const std::size_t events = m_stage.record.events();
    if (events >= m_nextCheck) {
        m_nextCheck = events + checkEvery;
        m_checks.nowAndThen();
    }
    if (events >= m_nextUndo && !QApplication::activeModalWidget()) {
        m_nextUndo = events + undoEvery;
        m_checks.undoAndRedo();
    }
    while (m_megabytes.size() < quarters && events * quarters >= m_events * (m_megabytes.size() + 1))
        m_megabytes.push_back(Record::peakMegabytes());
}

void Walker::tell() const
{
    const Record& record = m_stage.record;
    std::printf("  %zu events, fingerprint %016llx\n", record.events(),
                static_cast<unsigned long long>(record.fingerprint()));
    print("kinds", record.kinds());
    print("events with window", m_windows);
    print("counts", record.counts());
    std::printf("  peak memory at the quarters, MB:");
    for (const long megabytes : m_megabytes)
        std::printf(" %ld", megabytes);
    std::printf("\n");
}

} // namespace kitwright::walking
