// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/outcome.h"
#include "platform/qt_text.h"

#include <QLoggingCategory>

namespace kitwright {

/// Leaves one line on standard error when a step failed, so that it can be traced: "kitwright.app: saving: ...".
inline void report(const QLoggingCategory& category, const char* step, const Failure& failure)
{
    if (failure)
        qCWarning(category, "%s: %s", step, failure->c_str());
}

} // namespace kitwright
