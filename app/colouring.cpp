// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/colouring.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace kitwright {

namespace {

/// Entries of the palette of a full pass.
enum Paint : char { Plain, ConfigCommand, CLanguageWord, ClassName, Comment };

constexpr std::size_t scanned = 64; ///< Characters that the scan takes at once, a bit each.

/// The characters among the scanned ones that are one of `wanted`. There is no branch for a character: which of them
/// ends a word no processor can foretell, and each wrong guess costs as much as a dozen characters.
std::uint64_t bitsOf(std::string_view wanted, const char* characters)
{
    std::array<unsigned char, scanned> flags{};
    for (const char character : wanted) {
        for (std::size_t i = 0; i < scanned; ++i)
            flags[i] = static_cast<unsigned char>(flags[i] | (characters[i] == character));
    }
    // The product has the flags of eight bytes side by side at its upper end.
    constexpr std::uint64_t gather =
        std::endian::native == std::endian::little ? 0x0102040810204080 : 0x8040201008040201;
    std::uint64_t bits = 0;
    std::uint64_t eight = 0;
    for (std::size_t i = 0; i < scanned; i += sizeof eight) {
        std::memcpy(&eight, flags.data() + i, sizeof eight);
        bits |= eight * gather >> 56 << i;
    }
    return bits;
}

/// The bits below the lowest one that is set; all of them when none is.
constexpr std::uint64_t below(std::uint64_t bits)
{
    return (bits & (~bits + 1)) - 1;
}

/// A full pass over some whole lines.
class Pass {
public:
    Pass(std::string_view text, const KeywordList& keywords)
        : m_text(text),
          m_keywords(keywords),
          m_entries(text.size() + painted, Plain)
    {
    }

    void run()
    {
        Position start = 0;
        while (start < m_text.size())
            start = scan(start);
        paint(m_wordStart, m_text.size(), StyleMap::keep);
        m_entries.resize(m_text.size());
    }

    std::string takeEntries() { return std::move(m_entries); }
    std::vector<Respelling> takeRespellings() { return std::move(m_respellings); }

private:
    /// Goes on from a position; returns the one that it has come to.
    Position scan(Position start)
    {
        std::array<char, scanned + 1> rest{};
        const char* characters = m_text.data() + start;
        if (start + rest.size() > m_text.size()) {
            m_text.copy(rest.data(), rest.size(), start);
            characters = rest.data();
        }
        const std::uint64_t comments = bitsOf("/", characters) & bitsOf("/", characters + 1);
        words(start, bitsOf(" \r\n", characters) & below(comments));
        if (comments == 0)
            return start + scanned;
        const Position commentStart = start + static_cast<Position>(std::countr_zero(comments));
        paint(m_wordStart, commentStart, StyleMap::keep);
        m_wordStart = comment(commentStart);
        return m_wordStart;
    }

    /// Looks up the words that the delimiters among the scanned characters end.
    void words(Position start, std::uint64_t delimiters)
    {
        const std::uint64_t afterDelimiter = delimiters << 1 | (m_wordStart == start ? 1 : 0);
        std::uint64_t ends = delimiters & ~afterDelimiter;
        for (; ends != 0; ends &= ends - 1) {
            if (const std::uint64_t before = delimiters & below(ends); before != 0)
                m_wordStart = start + static_cast<Position>(std::bit_width(before));
            word(m_wordStart, start + static_cast<Position>(std::countr_zero(ends)));
        }
        if (delimiters != 0)
            m_wordStart = start + static_cast<Position>(std::bit_width(delimiters));
    }

    void word(Position start, Position end)
    {
        const auto [keyword, isRespelt] = m_keywords.match(m_text.substr(start, end - start));
        if (keyword < 0)
            return;
        if (isRespelt)
            m_respellings.push_back({start, m_keywords.textAt(keyword)});
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

    /// Paints the range that comes next; what lies before it is plain.
    void paint(Position start, Position end, char entry)
    {
        for (Position i = start; i < end; i += painted)
            std::memset(m_entries.data() + i, entry, painted);
        // The last step went too far.
        std::memset(m_entries.data() + end, Plain, painted);
    }

    /// Characters that are painted at once. Most ranges are shorter, and a fixed number is one instruction.
    static constexpr Position painted = 16;

    std::string_view m_text;
    const KeywordList& m_keywords;
    Position m_wordStart = 0; ///< Behind the last delimiter or comment.
    std::string m_entries;
    std::vector<Respelling> m_respellings;
};

/// The next piece to be coloured, of whole lines: so long that text, styles and map stay in the processor's cache. No
/// word and no comment reaches past the end of a line. `range` gives the text from the piece's start on, at most as
/// many bytes as it is asked for.
template <class Range>
std::string_view nextPiece(const Range& range)
{
    for (std::size_t length = 1 << 16;; length *= 2) {
        const std::string_view text = range(length);
        if (text.size() < length)
            return text;
        if (const std::size_t lineFeed = text.rfind('\n'); lineFeed != std::string_view::npos)
            return text.substr(0, lineFeed + 1);
    }
}

template <class Work>
void forEachPiece(const RichTextBox& box, const Work& work)
{
    for (Position start = 0, length = 0; start < box.length(); start += length) {
        const std::string_view piece = nextPiece([&](Position most) { return box.range(start, most); });
        length = piece.size();
        work(start, piece);
    }
}

/// Writes the respellings of a piece; the first of a text open the step that they all belong to.
void respell(RichTextBox& box, Position pieceStart, std::vector<Respelling> words, std::optional<UndoStep>& step)
{
    if (words.empty())
        return;
    if (!step)
        step.emplace(box);
    for (Respelling& word : words)
        word.start += pieceStart;
    box.respell(words);
}

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

void respellBox(RichTextBox& box, const KeywordList& keywords)
{
    std::optional<UndoStep> step;
    forEachPiece(box, [&](Position start, std::string_view piece) {
        respell(box, start, colourText(piece, keywords, {}).respellings, step);
    });
}

void colourBox(RichTextBox& box, const KeywordList& keywords, const EditorSettings& settings)
{
    std::optional<UndoStep> step;
    forEachPiece(box, [&](Position start, std::string_view piece) {
        FullPass pass = colourText(piece, keywords, settings);
        respell(box, start, std::move(pass.respellings), step);
        box.applyStyles(start, pass.styles);
    });
}

void loadColoured(RichTextBox& box, std::string text, const KeywordList& keywords, const EditorSettings& settings)
{
    // Edits of the box would cost many times as much as those of the text.
    std::vector<std::pair<Position, StyleMap>> styles;
    for (Position start = 0; start < text.size(); start += styles.back().second.entries.size()) {
        const auto rest = std::string_view(text).substr(start);
        FullPass pass =
            colourText(nextPiece([&](Position most) { return rest.substr(0, most); }), keywords, settings);
        for (const auto& [place, spelling] : pass.respellings)
            text.replace(start + place, spelling.size(), spelling);
        styles.emplace_back(start, std::move(pass.styles));
    }
    box.loadText(text);
    for (const auto& [start, map] : styles)
        box.applyStyles(start, map);
}

} // namespace kitwright
