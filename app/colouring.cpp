// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/colouring.h"

#include <algorithm>
#include <array>

namespace kitwright {

namespace {

/// Entries of the palette of a full pass.
enum Paint : char { Plain, ConfigCommand, CLanguageWord, ClassName, Comment };

/// Where a word ends.
constexpr std::array<bool, 256> isDelimiter = [] {
    std::array<bool, 256> table{};
    for (const char character : {' ', '\r', '\n'})
        table[static_cast<unsigned char>(character)] = true;
    return table;
}();

class Pass {
public:
    Pass(std::string_view text, const KeywordList& keywords) : m_text(text), m_keywords(keywords)
    {
        m_entries.resize(text.size(), Plain);
    }

    void run()
    {
        Position wordStart = 0;
        const Position end = m_text.size();
        for (Position i = 0; i < end;) {
            const char character = m_text[i];
            if (character == '/' && i + 1 < end && m_text[i + 1] == '/') {
                paint(wordStart, i, StyleMap::keep);
                i = comment(i);
                wordStart = i;
                continue;
            }
            if (isDelimiter[static_cast<unsigned char>(character)]) {
                word(wordStart, i);
                wordStart = i + 1;
            }
            ++i;
        }
        paint(wordStart, end, StyleMap::keep);
    }

    std::string takeEntries() { return std::move(m_entries); }
    std::vector<Respelling> takeRespellings() { return std::move(m_respellings); }

private:
    void paint(Position start, Position end, char entry)
    {
        std::fill(m_entries.begin() + static_cast<std::ptrdiff_t>(start),
                  m_entries.begin() + static_cast<std::ptrdiff_t>(end), entry);
    }

    void word(Position start, Position end)
    {
        if (start == end)
            return;
        const std::string_view characters = m_text.substr(start, end - start);
        const int keyword = m_keywords.find(characters);
        if (keyword < 0)
            return;
        if (m_keywords.textAt(keyword) != characters)
            m_respellings.push_back({start, keyword});
        const auto keywordClass = static_cast<int>(m_keywords.classAt(keyword));
        const bool hasStyle = keywordClass >= ConfigCommand && keywordClass <= ClassName;
        paint(start, end, hasStyle ? static_cast<char>(keywordClass) : StyleMap::keep);
    }

    /// Paints the comment that starts at a position, its line break included; returns the place behind it.
    Position comment(Position start)
    {
        const std::size_t lineFeed = m_text.find('\n', start);
        const Position end = lineFeed == std::string_view::npos ? m_text.size() : lineFeed + 1;
        paint(start, end, Comment);
        return end;
    }

    std::string_view m_text;
    const KeywordList& m_keywords;
    std::string m_entries;
    std::vector<Respelling> m_respellings;
};

} // namespace

std::optional<TextStyle> keywordStyle(KeywordClass keywordClass, const EditorSettings& settings)
{
    switch (keywordClass) {
    case KeywordClass::ConfigCommand:
        return TextStyle{settings.ConfigKeywordColor, settings.ConfigKeywordBold, settings.ConfigKeywordItalic};
    case KeywordClass::CLanguageWord:
        return TextStyle{settings.CKeywordColor, settings.CKeywordBold, settings.CKeywordItalic};
    case KeywordClass::ClassName:
        return TextStyle{settings.ClassNameColor, settings.ClassNameBold, settings.ClassNameItalic};
    }
    return std::nullopt;
}

TextStyle commentStyle(const EditorSettings& settings)
{
    return {settings.CommentColor, settings.CommentBold, settings.CommentItalic};
}

FullPass colourText(std::string_view text, const KeywordList& keywords, const EditorSettings& settings)
{
    Pass pass(text, keywords);
    pass.run();
    FullPass result;
    result.styles.palette = {TextStyle{}, *keywordStyle(KeywordClass::ConfigCommand, settings),
                             *keywordStyle(KeywordClass::CLanguageWord, settings),
                             *keywordStyle(KeywordClass::ClassName, settings), commentStyle(settings)};
    result.styles.entries = pass.takeEntries();
    result.respellings = pass.takeRespellings();
    return result;
}

void respell(RichTextBox& box, Position start, std::string_view spelling)
{
    const TextStyle style = box.styleAt(start);
    box.replaceRange(start, spelling.size(), spelling);
    box.styleRange(start, spelling.size(), style);
}

void colourBox(RichTextBox& box, const KeywordList& keywords, const EditorSettings& settings)
{
    const FullPass pass = colourText(box.text(), keywords, settings);
    if (!pass.respellings.empty()) {
        const UndoStep step(box);
        for (const Respelling& respelling : pass.respellings)
            respell(box, respelling.start, keywords.textAt(respelling.keyword));
    }
    box.styleAll(pass.styles);
}

} // namespace kitwright
