// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/keyword_list.h"

#include "text/letter_case.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <unordered_set>

namespace kitwright {

namespace {

constexpr std::array<unsigned char, 256> asciiCapitals = [] {
    std::array<unsigned char, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte)
        table[byte] = static_cast<unsigned char>(upperAscii(static_cast<char>(byte)));
    return table;
}();

/// The first eight characters, or all when there are fewer, as a number that is the same in any letter case.
std::uint64_t eightOf(std::string_view characters)
{
    constexpr std::uint64_t caseBits = 0x2020202020202020;
    const std::size_t size = characters.size();
    std::uint64_t eight = 0;
    if (size >= sizeof eight) {
        std::memcpy(&eight, characters.data(), sizeof eight);
    } else if (std::uint32_t first = 0, last = 0; size >= sizeof first) {
        std::memcpy(&first, characters.data(), sizeof first);
        std::memcpy(&last, characters.data() + size - sizeof last, sizeof last);
        eight = std::uint64_t{last} << 32 | first;
    } else {
        for (const char character : characters)
            eight = eight << 8 | static_cast<unsigned char>(character);
    }
    return eight & ~caseBits;
}

/// Hash of a word in any letter case. Bytes beyond ASCII are left out, so that their capitals need not be known.
std::uint32_t hashOf(std::string_view word)
{
    constexpr std::uint64_t highBits = 0x8080808080808080;
    constexpr std::uint64_t mixer = 0x9E3779B97F4A7C15;
    std::uint64_t hash = word.size();
    for (std::size_t i = 0; i < word.size(); i += sizeof hash) {
        const std::uint64_t eight = eightOf(word.substr(i));
        const std::uint64_t beyondAscii = ((eight & highBits) >> 7) * 0xFF;
        hash = (hash ^ (eight & ~beyondAscii)) * mixer;
        hash ^= hash >> 32;
    }
    return static_cast<std::uint32_t>(hash);
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

KeywordList::Match KeywordList::matchInTable(std::string_view word) const
{
    const std::size_t mask = m_slots.size() - 1;
    const std::uint32_t hash = hashOf(word);
    for (std::size_t at = hash & mask; m_slots[at].entry >= 0; at = (at + 1) & mask) {
        if (m_slots[at].hash != hash)
            continue;
        const Entry& entry = m_entries[static_cast<std::size_t>(m_slots[at].entry)];
        if (entry.text == word)
            return {m_slots[at].entry, false};
        if (entry.upper.size() == word.size() && matches(word, entry.upper))
            return {m_slots[at].entry, true};
    }
    return {};
}

void KeywordList::sort()
{
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [](const Entry& left, const Entry& right) { return left.upper < right.upper; });
    index();
}

void KeywordList::noteLength(std::string_view upper)
{
    const std::size_t first = upper.empty() ? 0 : static_cast<unsigned char>(upper.front());
    for (std::size_t byte = 0; byte < m_lengths.size(); ++byte) {
        // Letters beyond ASCII may begin with another byte in the other case.
        if (first < 0x80 ? asciiCapitals[byte] == first : byte >= 0x80)
            m_lengths[byte] |= lengthBit(upper);
    }
}

/// Puts the answer of the binary search for each word into the hash table, so that `find` agrees with it even where
/// the list holds a word twice.
void KeywordList::index()
{
    std::size_t size = 16;
    while (size < 2 * m_entries.size())
        size *= 2;
    m_slots.assign(size, {});
    m_lengths = {};
    for (std::size_t entry = 0; entry < m_entries.size(); ++entry) {
        const std::string& upper = m_entries[entry].upper;
        noteLength(upper);
        if (entry > 0 && m_entries[entry - 1].upper == upper)
            continue;
        const bool twice = entry + 1 < m_entries.size() && m_entries[entry + 1].upper == upper;
        const std::uint32_t hash = hashOf(upper);
        std::size_t at = hash & (size - 1);
        while (m_slots[at].entry >= 0)
            at = (at + 1) & (size - 1);
        m_slots[at] = {hash, twice ? FindExact(0, count() - 1, upper, *this) : static_cast<int>(entry)};
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
