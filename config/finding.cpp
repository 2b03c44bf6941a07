// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/finding.h"

#include "config/characters.h"
#include "text/utf8.h"

#include <algorithm>
#include <tuple>

namespace kitwright {

namespace {

std::string shownArgument(std::string_view text)
{
    constexpr std::size_t mostBytes = 60;
    const std::string_view shown = cutUtf8(text, mostBytes);
    std::string result(shown);
    std::replace_if(result.begin(), result.end(), isBlank, ' ');
    return shown.size() < text.size() ? result + "..." : result;
}

} // namespace

void FindingList::add(Message message, TextRange range, std::initializer_list<std::string_view> arguments,
                      std::vector<TextEdit> mend)
{
    ++m_counts[static_cast<std::size_t>(severityOf(message))];
    if (isFull())
        return;
    Finding& finding = m_kept.emplace_back(Finding{message, range, {}, std::move(mend)});
    for (const std::string_view argument : arguments)
        finding.arguments.push_back(shownArgument(argument));
}

void FindingList::append(FindingList&& others)
{
    for (std::size_t i = 0; i < m_counts.size(); ++i)
        m_counts[i] += others.m_counts[i];
    for (Finding& finding : others.m_kept) {
        if (isFull())
            break;
        m_kept.push_back(std::move(finding));
    }
}

void FindingList::removeIf(const std::function<bool(const Finding&)>& isMeant, std::size_t from)
{
    const auto start = m_kept.begin() + static_cast<std::ptrdiff_t>(std::min(from, m_kept.size()));
    const auto kept = std::stable_partition(start, m_kept.end(), [&](const Finding& one) { return !isMeant(one); });
    for (auto removed = kept; removed != m_kept.end(); ++removed)
        --m_counts[static_cast<std::size_t>(removed->severity())];
    m_kept.erase(kept, m_kept.end());
}

void FindingList::sort()
{
    std::stable_sort(m_kept.begin(), m_kept.end(), [](const Finding& left, const Finding& right) {
        return std::tie(left.range.start, left.range.end) < std::tie(right.range.start, right.range.end);
    });
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
