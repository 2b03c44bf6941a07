// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/keyword_list.h"

#include "text/letter_case.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace kitwright {

namespace {

constexpr std::array<unsigned char, 256> asciiCapitals = [] {
    std::array<unsigned char, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte)
        table[byte] = static_cast<unsigned char>(upperAscii(static_cast<char>(byte)));
    return table;
}();

/// Hash of a word as if it were upper-cased. Bytes beyond ASCII are left out, so that their case need not be known.
std::uint32_t hashOf(std::string_view word)
{
    std::uint32_t hash = 2166136261U;
    for (const char character : word) {
        const unsigned char byte = asciiCapitals[static_cast<unsigned char>(character)];
        if (byte < 0x80)
            hash = (hash ^ byte) * 16777619U;
    }
    return hash ^ hash >> 15;
}

/// True when a word, upper-cased, is `upper`; both are equally long.
bool matches(std::string_view word, std::string_view upper)
{
    for (std::size_t i = 0; i < word.size(); ++i) {
        const auto byte = static_cast<unsigned char>(word[i]);
        if (byte >= 0x80)
            return upperCased(word) == upper;
        if (asciiCapitals[byte] != static_cast<unsigned char>(upper[i]))
            return false;
    }
    return true;
}

} // namespace

std::string_view KeywordList::textAt(int index) const
{
    return index >= 0 && index < count() ? std::string_view(m_entries[static_cast<std::size_t>(index)].text)
                                         : std::string_view();
}

void KeywordList::add(std::string_view text, KeywordClass keywordClass)
{
    m_entries.push_back({std::string(text), upperCased(text), keywordClass});
    sort();
}

void KeywordList::addLines(std::string_view text, KeywordClass keywordClass)
{
    std::unordered_set<std::string> known;
    for (const Entry& entry : m_entries)
        known.insert(entry.upper);
    for (const std::string_view line : dataLines(text)) {
        const std::string_view word = trimmedSpaces(line);
        if (word.find('*') != std::string_view::npos)
            continue;
        std::string upper = upperCased(word);
        if (known.insert(upper).second)
            m_entries.push_back({std::string(word), std::move(upper), keywordClass});
    }
    sort();
}

int KeywordList::find(std::string_view word) const
{
    if (m_slots.empty() || word.size() > m_longest)
        return -1;
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t slot = hashOf(word) & mask; m_slots[slot] >= 0; slot = (slot + 1) & mask) {
        const Entry& entry = m_entries[static_cast<std::size_t>(m_slots[slot])];
        if (entry.upper.size() == word.size() && matches(word, entry.upper))
            return m_slots[slot];
    }
    return -1;
}

void KeywordList::sort()
{
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [](const Entry& left, const Entry& right) { return left.upper < right.upper; });
    index();
}

/// Puts the answer of the binary search for each word into the hash table, so that `find` agrees with it even where
/// the list holds a word twice.
void KeywordList::index()
{
    std::size_t size = 16;
    while (size < 2 * m_entries.size())
        size *= 2;
    m_slots.assign(size, -1);
    m_longest = 0;
    for (std::size_t entry = 0; entry < m_entries.size(); ++entry) {
        const std::string& upper = m_entries[entry].upper;
        m_longest = std::max(m_longest, upper.size());
        if (entry > 0 && m_entries[entry - 1].upper == upper)
            continue;
        const bool twice = entry + 1 < m_entries.size() && m_entries[entry + 1].upper == upper;
        std::size_t slot = hashOf(upper) & (size - 1);
        while (m_slots[slot] >= 0)
            slot = (slot + 1) & (size - 1);
        m_slots[slot] = twice ? FindExact(0, count() - 1, upper, *this) : static_cast<int>(entry);
    }
}

Failure NactiPrikazyConfig(const TextFiles& texts, const std::string& path, KeywordClass keywordClass,
                           KeywordList& list)
{
    const Outcome<std::string> text = texts.read(path);
    if (!text)
        return text.reason();
    list.addLines(*text, keywordClass);
    return {};
}

} // namespace kitwright
