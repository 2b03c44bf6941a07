// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pack/ignore_patterns.h"

#include "text/letter_case.h"
#include "text/utf8.h"

#include <algorithm>
#include <span>

namespace kitwright {

namespace {

constexpr std::string_view anyParts = "**";

std::vector<std::string> partsOf(std::string_view path)
{
    std::vector<std::string> parts;
    for (std::size_t start = 0; start <= path.size();) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        parts.push_back(upperCased(path.substr(start, end - start)));
        start = end + 1;
    }
    return parts;
}

/// What one item of a pattern says of a character, and where the next item starts.
struct ItemMatch {
    bool matches = false;
    std::size_t next = 0;
};

/// The set "[...]" that starts at `start`; one that does not end is a bracket like any other character.
ItemMatch matchSet(std::string_view pattern, std::size_t start, std::string_view character)
{
    std::size_t i = start + 1;
    const bool isExcluding = i < pattern.size() && (pattern[i] == '!' || pattern[i] == '^');
    if (isExcluding)
        ++i;
    const char32_t sought = utf8At(character, 0).codePoint;
    bool found = false;
    for (const std::size_t first = i; i < pattern.size() && (pattern[i] != ']' || i == first);) {
        if (pattern[i] == '\\' && i + 1 < pattern.size())
            ++i;
        const Utf8Character low = utf8At(pattern, i);
        i += low.length;
        char32_t high = low.codePoint;
        if (i + 1 < pattern.size() && pattern[i] == '-' && pattern[i + 1] != ']') {
            const Utf8Character end = utf8At(pattern, i + 1);
            high = end.codePoint;
            i += 1 + end.length;
        }
        found = found || (sought >= low.codePoint && sought <= high);
    }
    if (i >= pattern.size())
        return {character == "[", start + 1};
    return {found != isExcluding, i + 1};
}

ItemMatch matchItem(std::string_view pattern, std::size_t start, std::string_view character)
{
    if (pattern[start] == '?')
        return {true, start + 1};
    if (pattern[start] == '[')
        return matchSet(pattern, start, character);
    if (pattern[start] == '\\' && start + 1 < pattern.size())
        ++start;
    const std::size_t length = utf8At(pattern, start).length;
    return {pattern.substr(start, length) == character, start + length};
}

/// Matches one part of a path. After a mismatch only the last "*" needs to take one character more: what an earlier one
/// could take instead, the last one can take as well. So the time is the product of the lengths at most.
bool matchPart(std::string_view pattern, std::string_view name)
{
    std::size_t p = 0;
    std::size_t n = 0;
    std::size_t behindStar = std::string_view::npos;
    std::size_t starTakes = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            behindStar = ++p;
            starTakes = n;
            continue;
        }
        const std::size_t length = utf8At(name, n).length;
        const ItemMatch item = p < pattern.size() ? matchItem(pattern, p, name.substr(n, length)) : ItemMatch();
        if (item.matches) {
            p = item.next;
            n += length;
        } else if (behindStar != std::string_view::npos) {
            p = behindStar;
            starTakes += utf8At(name, starTakes).length;
            n = starTakes;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

/// The same for the parts of a path and "**".
bool matchParts(std::span<const std::string> pattern, std::span<const std::string> path)
{
    std::size_t p = 0;
    std::size_t n = 0;
    std::size_t behindAny = pattern.size() + 1;
    std::size_t anyTakes = 0;
    while (n < path.size()) {
        if (p < pattern.size() && pattern[p] == anyParts) {
            behindAny = ++p;
            anyTakes = n;
            // At the end it stands for what is inside a folder, and not for the folder itself.
            if (p == pattern.size())
                return true;
        } else if (p < pattern.size() && matchPart(pattern[p], path[n])) {
            ++p;
            ++n;
        } else if (behindAny <= pattern.size()) {
            p = behindAny;
            n = ++anyTakes;
        } else {
            return false;
        }
    }
    return p == pattern.size();
}

/// The line without the blanks at its end, of which a backslash keeps one.
std::string_view withoutBlanks(std::string_view line)
{
    while (!line.empty() && (line.back() == ' ' || line.back() == '\t' || line.back() == '\r')) {
        const std::size_t lastOther = line.substr(0, line.size() - 1).find_last_not_of('\\');
        const std::size_t start = lastOther == std::string_view::npos ? 0 : lastOther + 1;
        if ((line.size() - 1 - start) % 2 != 0)
            break;
        line.remove_suffix(1);
    }
    return line;
}

} // namespace

void IgnorePatterns::addLines(std::string_view lines)
{
    for (std::size_t start = 0; start < lines.size();) {
        const std::size_t end = std::min(lines.find('\n', start), lines.size());
        addLine(lines.substr(start, end - start));
        start = end + 1;
    }
}

void IgnorePatterns::addLine(std::string_view line)
{
    line = withoutBlanks(line);
    if (line.starts_with('#'))
        return;
    Pattern pattern;
    if (line.starts_with('!')) {
        pattern.takesIn = true;
        line.remove_prefix(1);
    }
    if (line.ends_with('/')) {
        pattern.isForFolders = true;
        line.remove_suffix(1);
    }
    const bool isAnchored = line.find('/') != std::string_view::npos;
    if (line.starts_with('/'))
        line.remove_prefix(1);
    if (line.empty())
        return;
    pattern.parts = partsOf(line);
    if (!isAnchored)
        pattern.parts.insert(pattern.parts.begin(), std::string(anyParts));
    m_patterns.push_back(std::move(pattern));
}

bool IgnorePatterns::leaveOut(std::string_view path, bool isFolder) const
{
    const std::vector<std::string> parts = partsOf(path);
    const auto last = std::find_if(m_patterns.rbegin(), m_patterns.rend(), [&](const Pattern& pattern) {
        return (isFolder || !pattern.isForFolders) && matchParts(pattern.parts, parts);
    });
    return last != m_patterns.rend() && !last->takesIn;
}

} // namespace kitwright
