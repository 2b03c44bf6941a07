// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/searches.h"
#include "text/text_files.h"

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
    std::string_view textAt(int index) const override;
    KeywordClass classAt(int index) const { return m_entries[static_cast<std::size_t>(index)].keywordClass; }

    /// Inserts a keyword at its sorted place, whether the list has it already or not.
    void add(std::string_view text, KeywordClass keywordClass);

    /// Adds the lines of a keyword file that the list does not have yet; lines with "*" are no keywords.
    void addLines(std::string_view text, KeywordClass keywordClass);

    /// The entry that `FindExact` gives for a word, or -1, in a time that does not grow with the list.
    int find(std::string_view word) const;

private:
    struct Entry {
        std::string text;
        std::string upper;
        KeywordClass keywordClass = KeywordClass::ConfigCommand;
    };

    void sort();
    void index();

    std::vector<Entry> m_entries;
    std::vector<int> m_slots; ///< Open-addressing hash table of entry indexes; -1 where free, a power of two long.
    std::size_t m_longest = 0;
};

/// Adds the words of a keyword file to the list.
Failure NactiPrikazyConfig(const TextFiles& texts, const std::string& path, KeywordClass keywordClass,
                           KeywordList& list);

} // namespace kitwright
