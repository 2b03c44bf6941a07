// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pack/reasons.h"

#include "text/utf8.h"

namespace kitwright {

std::string printable(std::string_view text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        const Utf8Character character = utf8At(text, i);
        const bool isControl = !character.valid || character.codePoint < 0x20
                            || (character.codePoint >= 0x7F && character.codePoint < 0xA0);
        if (isControl)
            result += '?';
        else
            result += text.substr(i, character.length);
        i += character.length;
    }
    return result;
}

std::string because(std::string_view subject, const char* why)
{
    constexpr std::size_t longestSubject = 300;
    const std::string_view start = cutUtf8(subject, longestSubject);
    return printable(start) + (start.size() < subject.size() ? "...: " : ": ") + why;
}

} // namespace kitwright
