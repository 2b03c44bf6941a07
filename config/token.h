// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/characters.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kitwright {

/// A part of a text: bytes from 0, the end not included.
struct TextRange {
    std::uint32_t start = 0;
    std::uint32_t end = 0;

    friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// The index of a token in its text, from 0.
using TokenIndex = std::uint32_t;

enum class TokenKind : std::uint8_t {
    End,  ///< Behind the last token; of no length.
    Word, ///< Any text without blanks that is nothing else: names, bare values, words of macros.
    Number,
    Class,      ///< The word "class", in any letter case.
    Delete,     ///< The word "delete".
    String,     ///< With its quotes; a doubled quote inside stands for one.
    OpenString, ///< A string that the end of its line cuts off.
    OpenBrace,
    CloseBrace,
    OpenBracket,
    CloseBracket,
    OpenParenthesis,
    CloseParenthesis,
    Assign,
    Append, ///< "+="
    Semicolon,
    Colon,
    Comma,
    LineComment,
    BlockComment,
    OpenComment, ///< A block comment without an end.
    Directive,   ///< From "#" to the end of its line, continuation lines included.
};

/// The tokens of a text in their order, 5 bytes each. Between two of them stand blanks only. The text is not copied
/// and must outlive them.
class Tokens {
public:
    Tokens() { end(); }
    explicit Tokens(std::string_view text) : m_text(text) {}

    std::string_view text() const { return m_text; }

    /// How many there are, the last one, of the kind End, not counted.
    TokenIndex count() const { return m_count; }

    /// Those of the kind Directive.
    const std::vector<TokenIndex>& directives() const { return m_directives; }

    /// Whether there are strings or comments without an end.
    bool areCutOff() const { return m_areCutOff; }

    TokenKind kind(TokenIndex index) const { return static_cast<TokenKind>(m_kinds[index] & kindMask); }
    bool isFirstOnLine(TokenIndex index) const { return (m_kinds[index] & lineMark) != 0; }

    /// False for a word with characters that no name has.
    bool isPlain(TokenIndex index) const { return (m_kinds[index] & oddMark) == 0; }

    bool isComment(TokenIndex index) const
    {
        constexpr auto first = static_cast<unsigned>(TokenKind::LineComment);
        constexpr auto last = static_cast<unsigned>(TokenKind::OpenComment);
        return (m_kinds[index] & kindMask) - first <= last - first;
    }

    /// The token behind another one, comments passed over; the last one at the most.
    TokenIndex behind(TokenIndex token) const
    {
        if (token >= m_count)
            return m_count;
        do
            ++token;
        while (isComment(token));
        return token;
    }

    std::uint32_t start(TokenIndex index) const { return m_starts[index]; }
    std::uint32_t end(TokenIndex index) const;
    TextRange range(TokenIndex index) const { return {start(index), end(index)}; }
    std::string_view textOf(TokenIndex index) const { return slice(range(index)); }
    std::string_view slice(TextRange range) const { return m_text.substr(range.start, range.end - range.start); }

    /// The token that a byte of the text belongs to, or the first one behind it.
    TokenIndex at(std::uint32_t offset) const;

    void reserve(std::size_t count);
    void add(TokenKind kind, std::uint32_t start, bool isFirstOnLine, bool isPlain = true);

    void addDirective(std::uint32_t start);
    void addCutOff(TokenKind kind, std::uint32_t start, bool isFirstOnLine);

    /// Adds the token of the kind End, behind all others.
    void end();

    /// Bytes that the tokens take.
    std::size_t memory() const
    {
        return (m_starts.capacity() + m_directives.capacity()) * sizeof(std::uint32_t) + m_kinds.capacity();
    }

private:
    static constexpr std::uint8_t lineMark = 0x80; ///< On the first token of a line.
    static constexpr std::uint8_t oddMark = 0x40;  ///< On words that are not plain.
    static constexpr unsigned kindMask = 0x3F;

    std::string_view m_text;
    std::vector<std::uint32_t> m_starts;
    std::vector<std::uint8_t> m_kinds; ///< With the marks.
    std::vector<TokenIndex> m_directives;
    TokenIndex m_count = 0;
    bool m_areCutOff = false;
};

inline std::uint32_t Tokens::end(TokenIndex index) const
{
    const TokenKind kind = this->kind(index);
    const std::uint32_t start = m_starts[index];
    if (kind >= TokenKind::OpenBrace && kind <= TokenKind::Comma)
        return start + (kind == TokenKind::Append ? 2 : 1);
    if (kind == TokenKind::End)
        return start;
    // What follows a token is blanks up to the next one.
    std::uint32_t end = m_starts[index + 1];
    while (end > start + 1 && isBlank(m_text[end - 1]))
        --end;
    return end;
}

inline void Tokens::add(TokenKind kind, std::uint32_t start, bool isFirstOnLine, bool isPlain)
{
    m_starts.push_back(start);
    m_kinds.push_back(static_cast<std::uint8_t>(static_cast<unsigned>(kind) | (isFirstOnLine ? lineMark : 0U)
                                                | (isPlain ? 0U : oddMark)));
}

} // namespace kitwright
