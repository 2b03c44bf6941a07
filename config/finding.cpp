// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/finding.h"

#include "config/characters.h"
#include "text/utf8.h"

#include <algorithm>
#include <tuple>

namespace kitwright {

void FindingList::sort()
{
    std::stable_sort(findings.begin(), findings.end(), [](const Finding& left, const Finding& right) {
        return std::tie(left.range.start, left.range.end) < std::tie(right.range.start, right.range.end);
    });
}

std::string shownArgument(std::string_view text)
{
    constexpr std::size_t mostBytes = 60;
    const std::string_view shown = cutUtf8(text, mostBytes);
    std::string result(shown);
    std::replace_if(result.begin(), result.end(), isBlank, ' ');
    return shown.size() < text.size() ? result + "..." : result;
}

std::string textOf(const Finding& finding)
{
    return withArguments(textOf(finding.message), finding.arguments);
}

std::string edited(std::string_view text, const std::vector<TextEdit>& edits)
{
    std::string result;
    std::size_t copied = 0;
    for (const TextEdit& edit : edits) {
        result.append(text.substr(copied, edit.range.start - copied)).append(edit.text);
        copied = edit.range.end;
    }
    return result.append(text.substr(copied));
}

} // namespace kitwright
