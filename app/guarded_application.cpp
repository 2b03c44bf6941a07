// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/guarded_application.h"

#include "app/log.h"
#include "platform/report.h"

#include <exception>

namespace kitwright {

bool guarded(const std::function<bool()>& handler)
{
    try {
        return handler();
    } catch (const std::exception& exception) {
        report(lcApp(), "handling an event", exception.what());
    } catch (...) {
        report(lcApp(), "handling an event", "unknown exception");
    }
    return false;
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event)
{
    return guarded([&] { return QApplication::notify(receiver, event); });
}

} // namespace kitwright
