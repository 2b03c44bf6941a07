// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/report.h"

#include "platform/qt_text.h"
#include "platform/shown_text.h"

#include <algorithm>

namespace kitwright {

void report(const QLoggingCategory& category, const char* step, const Failure& failure)
{
    if (!failure)
        return;
    QString line = shownText(*failure);
    std::replace_if(
        line.begin(), line.end(), [](QChar character) { return !character.isPrint(); }, QChar(u'?'));
    qCWarning(category, "%s: %s", step, fromQt(line).c_str());
}

} // namespace kitwright
