// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/shown_text.h"

#include "platform/qt_text.h"
#include "platform/utf8.h"

namespace kitwright {

QString shownText(std::string_view text)
{
    constexpr std::size_t mostBytes = 1'000;
    std::string_view start = cutUtf8(text, mostBytes);
    return start.size() == text.size() ? toQt(text) : toQt(start) + QChar(0x2026);
}

} // namespace kitwright
