// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QApplication>

#include <functional>

namespace kitwright {

/// Runs a handler. An exception that it lets out, such as that of a failed allocation, is reported and ends the handler
/// only: the program and the author's text live on. Returns what the handler returns, false after an exception.
bool guarded(const std::function<bool()>& handler);

/// The desktop's application, which delivers each event guarded.
class GuardedApplication final : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace kitwright
