// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

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
    End, ///< Behind the last token; of no length.
    Word, ///< Any text without blanks that is nothing else: names, bare values, words of macros.
    Number,
    Class,  ///< The word "class", in any letter case.
    Delete, ///< The word "delete".
    String, ///< With its quotes; a doubled quote inside stands for one.
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
    Tokens() = default;
    explicit Tokens(std::string_view text) : m_text(text) {}

    std::string_view text() const { return m_text; }

    /// How many there are, the last one, of the kind End, not counted.
    TokenIndex count() const { return m_starts.empty() ? 0 : static_cast<TokenIndex>(m_starts.size() - 1); }

    TokenKind kind(TokenIndex index) const { return static_cast<TokenKind>(m_kinds[index] & ~lineMark); }
    bool isFirstOnLine(TokenIndex index) const { return (m_kinds[index] & lineMark) != 0; }
    bool isComment(TokenIndex index) const
    {
        return kind(index) >= TokenKind::LineComment && kind(index) <= TokenKind::OpenComment;
    }

    std::uint32_t start(TokenIndex index) const { return m_starts[index]; }
    std::uint32_t end(TokenIndex index) const;
    TextRange range(TokenIndex index) const { return {start(index), end(index)}; }
    std::string_view textOf(TokenIndex index) const { return slice(range(index)); }
    std::string_view slice(TextRange range) const { return m_text.substr(range.start, range.end - range.start); }

    /// The token that a byte of the text belongs to, or the first one behind it.
    TokenIndex at(std::uint32_t offset) const;

    void reserve(std::size_t count);
    void add(TokenKind kind, std::uint32_t start, bool isFirstOnLine);

    /// Bytes that the tokens take.
    std::size_t memory() const { return m_starts.capacity() * sizeof(std::uint32_t) + m_kinds.capacity(); }

private:
    static constexpr std::uint8_t lineMark = 0x80;

    std::string_view m_text;
    std::vector<std::uint32_t> m_starts;
    std::vector<std::uint8_t> m_kinds; ///< With `lineMark` where a token is the first one on its line.
};

} // namespace kitwright
