// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/shown_text.h"

#include "platform/qt_text.h"

namespace kitwright {

QString shownText(std::string_view text)
{
    constexpr std::size_t mostBytes = 1'000;
    if (text.size() <= mostBytes)
        return toQt(text);
    std::size_t end = mostBytes;
    constexpr unsigned char kindMask = 0xC0;
    constexpr unsigned char continuation = 0x80;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & kindMask) == continuation)
        --end;
    return toQt(text.substr(0, end)) + QChar(0x2026);
}

} // namespace kitwright
