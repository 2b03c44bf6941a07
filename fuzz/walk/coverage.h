// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include <map>
#include <set>
#include <string>

class QWidget;

namespace kitwright::walking {

/// Which windows were shown, and which named controls felt mouse or keyboard while they were enabled. Sees every event
/// of the application for as long as it lives.
class Coverage final : public QObject {
public:
    Coverage();

    /// Learns the named menu entries of a main window that was just made.
    void learnEntries(QWidget& top);

    /// Learns the named controls of a main window and of those that it opened.
    void learnControls(QWidget& top);

    /// How often each window came up.
    const std::map<std::string, std::size_t>& windows() const { return m_windows; }

    std::size_t known() const { return m_known.size(); }

    /// The controls that were never touched, "window.control", or with "(disabled only)" behind.
    std::set<std::string> untouched() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void touch(const QWidget& widget);

    std::map<std::string, std::size_t> m_windows;
    std::set<std::string> m_known;
    std::set<std::string> m_touched;
    std::set<std::string> m_disabled;
};

} // namespace kitwright::walking
