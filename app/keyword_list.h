// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/searches.h"
#include "text/text_files.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// What a keyword is. Other numbers are possible in the list and mean nothing.
enum class KeywordClass : std::int16_t {
    ConfigCommand = 1, ///< A command of `config.cpp`.
    CLanguageWord = 2, ///< A word of the C language.
    ClassName = 3,     ///< A class name of the game.
};

/// The sorted list of keywords that the whole program shares, each spelled as it shall appear in the document.
class KeywordList final : public TextList {
public:
    int count() const override { return static_cast<int>(m_entries.size()); }
    std::string_view textAt(int index) const override
    {
        return index >= 0 && index < count() ? std::string_view(m_entries[static_cast<std::size_t>(index)].text)
                                             : std::string_view();
    }
    KeywordClass classAt(int index) const { return m_entries[static_cast<std::size_t>(index)].keywordClass; }

    /// Inserts a keyword at its sorted place, whether the list has it already or not.
    void add(std::string_view text, KeywordClass keywordClass);

    /// Adds the lines of a keyword file that the list does not have yet; lines with "*" are no keywords.
    void addLines(std::string_view text, KeywordClass keywordClass);

    /// What a word is in the list.
    struct Match {
        int index = -1;         ///< The entry that `FindExact` gives; -1 when there is none.
        bool isRespelt = false; ///< The entry's letter case is another one.
    };

    /// Looks a word up, in a time that does not grow with the list.
    Match match(std::string_view word) const { return mayHold(word) ? matchInTable(word) : Match(); }
    int find(std::string_view word) const { return match(word).index; }

private:
    struct Entry {
        std::string text;
        std::string upper;
        KeywordClass keywordClass = KeywordClass::ConfigCommand;
    };

    struct Slot {
        std::uint32_t hash = 0;
        int entry = -1; ///< -1 where the slot is free.
    };

    /// The bit for words of a length; the longest share one.
    static std::uint64_t lengthBit(std::string_view word)
    {
        return std::uint64_t{1} << std::min<std::size_t>(word.size(), 63);
    }

    /// False for most words that are none: no keyword begins with that letter, in any case, and is as long.
    bool mayHold(std::string_view word) const
    {
        const char first = word.empty() ? '\0' : word.front();
        return (m_lengths[static_cast<unsigned char>(first)] & lengthBit(word)) != 0;
    }

    Match matchInTable(std::string_view word) const;
    void sort();
    void index();
    void noteLength(std::string_view upper);

    std::vector<Entry> m_entries;
    std::vector<Slot> m_slots;                  ///< A hash table with open addressing; a power of two long.
    std::array<std::uint64_t, 256> m_lengths{}; ///< The lengths of the keywords by first byte, in either case.
};

/// Adds the words of a keyword file to the list.
Failure NactiPrikazyConfig(const TextFiles& texts, const std::string& path, KeywordClass keywordClass,
                           KeywordList& list);

} // namespace kitwright
