// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/catalogue.h"

#include "text/letter_case.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kitwright {

Failure LoadListFile(const TextFiles& texts, const std::string& path, std::vector<ListEntry>& list)
{
    const Outcome<std::string> text = texts.read(path);
    if (!text)
        return text.reason();
    std::vector<ListEntry> entries = listEntries(*text);
    list.insert(list.end(), std::move_iterator(entries.begin()), std::move_iterator(entries.end()));
    return linesLeftOut(path, *text);
}

BaseClassList::BaseClassList(const std::vector<ListEntry>& entries)
{
    std::vector<std::pair<std::string, std::string>> names;
    names.reserve(entries.size());
    for (const ListEntry& entry : entries)
        names.emplace_back(upperCased(entry.text), entry.text);
    std::stable_sort(names.begin(), names.end(),
                     [](const auto& left, const auto& right) { return left.first < right.first; });
    for (auto& name : names)
        m_names.push_back(std::move(name.second));
}

std::string_view BaseClassList::textAt(int index) const
{
    return index >= 0 && index < count() ? std::string_view(m_names[static_cast<std::size_t>(index)])
                                         : std::string_view();
}

int BaseClassList::find(std::string_view name) const
{
    return name.empty() || m_names.empty() ? -1 : FindPrefix(0, count() - 1, name, *this);
}

PropertyHelp::PropertyHelp(const std::vector<ListEntry>& entries)
{
    for (const ListEntry& entry : entries)
        m_help.try_emplace(entry.text, entry.help);
}

std::string PropertyHelp::find(const std::string& parent, const std::string& name) const
{
    auto found = m_help.find(parent + "/" + name);
    if (found == m_help.end())
        found = m_help.find(name);
    return found == m_help.end() ? std::string() : found->second;
}

} // namespace kitwright
