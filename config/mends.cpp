// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/mends.h"

#include "config/characters.h"

namespace kitwright {

std::string_view lineEndOf(std::string_view text)
{
    const std::size_t end = text.find('\n');
    return end == std::string_view::npos || (end > 0 && text[end - 1] == '\r') ? "\r\n" : "\n";
}

std::uint32_t lineStart(std::string_view text, std::uint32_t place)
{
    while (place > 0 && !isLineBreak(text[place - 1]))
        --place;
    return place;
}

std::string_view indentationOf(std::string_view text, std::uint32_t place)
{
    const std::uint32_t start = lineStart(text, place);
    const std::string_view front = text.substr(start, place - start);
    return trimmedBlanks(front).empty() ? front : std::string_view();
}

TextEdit removalOf(std::string_view text, TextRange range)
{
    const std::uint32_t start = lineStart(text, range.start);
    std::uint32_t end = range.end;
    while (end < text.size() && isBlank(text[end]) && !isLineBreak(text[end]))
        ++end;
    const bool isAlone = start + indentationOf(text, range.start).size() == range.start
                      && (end == text.size() || isLineBreak(text[end]));
    if (!isAlone)
        return {range, {}};
    if (end < text.size())
        end += text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n' ? 2U : 1U;
    return {{start, end}, {}};
}

TextEdit linesBefore(std::string_view text, std::uint32_t place, const std::vector<std::string>& lines)
{
    const std::string_view indentation = indentationOf(text, place);
    const std::uint32_t start = lineStart(text, place);
    const bool isLine = start + indentation.size() == place;
    std::string added;
    for (const std::string& line : lines) {
        if (isLine)
            added.append(indentation).append(line).append(lineEndOf(text));
        else
            added.append(line).append(" ");
    }
    const std::uint32_t from = isLine ? start : place;
    return {{from, from}, added};
}

} // namespace kitwright
