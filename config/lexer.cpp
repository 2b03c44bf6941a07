// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/lexer.h"

#include "config/characters.h"

#include <algorithm>
#include <array>

namespace kitwright {

namespace {

/// What a character begins: a token of one character, or one of the classes below.
enum Beginning : std::uint8_t { Blank = 32, Break, Quote, Slash, Plus, Hash, WordStart, NameStart };

constexpr std::array<std::uint8_t, 256> beginnings = [] {
    std::array<std::uint8_t, 256> table{};
    table.fill(WordStart);
    const auto set = [&](char character, auto value) {
        table[static_cast<unsigned char>(character)] = static_cast<std::uint8_t>(value);
    };
    for (int character = 0; character < 0x80; ++character) {
        if (isNameCharacter(static_cast<char>(character)))
            set(static_cast<char>(character), NameStart);
    }
    for (const char character : {' ', '\t', '\v', '\f'})
        set(character, Blank);
    set('\n', Break);
    set('\r', Break);
    set('"', Quote);
    set('/', Slash);
    set('+', Plus);
    set('#', Hash);
    set('{', TokenKind::OpenBrace);
    set('}', TokenKind::CloseBrace);
    set('[', TokenKind::OpenBracket);
    set(']', TokenKind::CloseBracket);
    set('(', TokenKind::OpenParenthesis);
    set(')', TokenKind::CloseParenthesis);
    set('=', TokenKind::Assign);
    set(';', TokenKind::Semicolon);
    set(':', TokenKind::Colon);
    set(',', TokenKind::Comma);
    return table;
}();

std::uint8_t beginningOf(char character)
{
    return beginnings[static_cast<unsigned char>(character)];
}

class Lexer {
public:
    explicit Lexer(std::string_view text)
        : m_text(text.substr(0, 0xFFFFFFFF)),
          m_end(static_cast<std::uint32_t>(m_text.size())),
          m_tokens(m_text)
    {
    }

    Tokens run()
    {
        m_tokens.reserve(m_text.size() / 5 + 16);
        while (m_at < m_end)
            step();
        m_tokens.end();
        return std::move(m_tokens);
    }

private:
    char at(std::uint32_t offset) const { return offset < m_end ? m_text[offset] : '\0'; }

    void step()
    {
        const std::uint8_t beginning = beginningOf(m_text[m_at]);
        switch (beginning) {
        case Blank:
            m_at = blanksEnd(m_at + 1);
            break;
        case Break:
            ++m_at;
            m_isFirstOnLine = true;
            break;
        case Quote:
            string();
            break;
        case Slash:
            slash();
            break;
        case Plus:
            if (at(m_at + 1) == '=')
                add(TokenKind::Append, m_at + 2);
            else
                word();
            break;
        case Hash:
            if (m_isFirstOnLine)
                directive();
            else
                word();
            break;
        case WordStart:
        case NameStart:
            word();
            break;
        default:
            add(static_cast<TokenKind>(beginning), m_at + 1);
        }
    }

    void add(TokenKind kind, std::uint32_t end)
    {
        m_tokens.add(kind, m_at, m_isFirstOnLine);
        m_isFirstOnLine = false;
        m_at = end;
    }

    void addCutOff(TokenKind kind, std::uint32_t end)
    {
        m_tokens.addCutOff(kind, m_at, m_isFirstOnLine);
        m_isFirstOnLine = false;
        m_at = end;
    }

    std::uint32_t blanksEnd(std::uint32_t from) const
    {
        const char* const text = m_text.data();
        while (from < m_end && beginningOf(text[from]) == Blank)
            ++from;
        return from;
    }

    std::uint32_t lineEnd(std::uint32_t from) const
    {
        const std::string_view rest = m_text.substr(from);
        const std::string_view line = rest.substr(0, rest.find('\n'));
        return from + static_cast<std::uint32_t>(std::min(line.find('\r'), line.size()));
    }

    void word()
    {
        const char* const text = m_text.data();
        std::uint32_t end = m_at;
        while (end < m_end && beginningOf(text[end]) == NameStart)
            ++end;
        bool isPlain = true;
        if (end == m_at || (end < m_end && continuesWord(end))) {
            isPlain = false;
            do
                ++end;
            while (end < m_end && continuesWord(end));
        }
        const TokenKind kind = kindOfWord(m_text.substr(m_at, end - m_at), isPlain);
        m_tokens.add(kind, m_at, m_isFirstOnLine, isPlain || kind == TokenKind::Number);
        m_isFirstOnLine = false;
        m_at = end;
    }

    bool continuesWord(std::uint32_t offset) const
    {
        const std::uint8_t beginning = beginningOf(m_text[offset]);
        if (beginning == Slash)
            return at(offset + 1) != '/' && at(offset + 1) != '*';
        if (beginning == Plus)
            return at(offset + 1) != '=';
        return beginning >= Hash;
    }

    static TokenKind kindOfWord(std::string_view word, bool isPlain)
    {
        const char first = word.front();
        if (first <= '9')
            return isNumber(word) ? TokenKind::Number : TokenKind::Word;
        if (isPlain && word.size() == 5 && (first == 'c' || first == 'C') && sameName(word, "class"))
            return TokenKind::Class;
        if (isPlain && word.size() == 6 && (first == 'd' || first == 'D') && sameName(word, "delete"))
            return TokenKind::Delete;
        return TokenKind::Word;
    }

    void string()
    {
        const StringEnd end = stringEnd(m_at);
        if (end.isClosed)
            add(TokenKind::String, end.offset);
        else
            addCutOff(TokenKind::OpenString, end.offset);
    }

    struct StringEnd {
        std::uint32_t offset = 0; ///< Behind the closing quote, or the end of the line.
        bool isClosed = false;
    };

    StringEnd stringEnd(std::uint32_t from) const
    {
        const char* const text = m_text.data();
        for (std::uint32_t i = from + 1; i < m_end; ++i) {
            const std::uint8_t beginning = beginningOf(text[i]);
            if (beginning == Break)
                return {i, false};
            if (beginning != Quote)
                continue;
            if (at(i + 1) != '"')
                return {i + 1, true};
            ++i;
        }
        return {m_end, false};
    }

    void slash()
    {
        if (at(m_at + 1) == '/') {
            add(TokenKind::LineComment, lineEnd(m_at));
        } else if (at(m_at + 1) == '*') {
            const bool isFirst = m_isFirstOnLine;
            const std::size_t end = m_text.find("*/", m_at + 2);
            if (end == std::string_view::npos)
                return addCutOff(TokenKind::OpenComment, m_end);
            add(TokenKind::BlockComment, static_cast<std::uint32_t>(end) + 2);
            m_isFirstOnLine = isFirst;
        } else {
            word();
        }
    }

    void directive()
    {
        m_tokens.addDirective(m_at);
        m_isFirstOnLine = false;
        m_at = directiveEnd();
    }

    /// A directive ends with its line, unless a backslash ends that, or at a comment that does.
    std::uint32_t directiveEnd() const
    {
        std::uint32_t i = m_at;
        while (i < m_end && !isLineBreak(m_text[i])) {
            if (m_text[i] == '"') {
                i = stringEnd(i).offset;
            } else if (m_text[i] == '/' && at(i + 1) == '/') {
                break;
            } else if (m_text[i] == '/' && at(i + 1) == '*') {
                const std::size_t end = m_text.substr(i, lineEnd(i) - i).find("*/", 2);
                if (end == std::string_view::npos)
                    break;
                i += static_cast<std::uint32_t>(end) + 2;
            } else if (m_text[i] == '\\' && isLineBreak(at(i + 1))) {
                i += at(i + 1) == '\r' && at(i + 2) == '\n' ? 3 : 2;
            } else {
                ++i;
            }
        }
        return std::min(i, m_end);
    }

    std::string_view m_text;
    std::uint32_t m_end;
    std::uint32_t m_at = 0;
    bool m_isFirstOnLine = true;
    Tokens m_tokens;
};

} // namespace

bool isNumber(std::string_view text)
{
    if (text.size() > 2 && text[0] == '0' && upperAscii(text[1]) == 'X')
        return text.find_first_not_of("0123456789abcdefABCDEF", 2) == std::string_view::npos;
    std::size_t i = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    const auto digits = [&] {
        const std::size_t start = i;
        while (i < text.size() && isDigit(text[i]))
            ++i;
        return i - start;
    };
    std::size_t count = digits();
    if (i < text.size() && text[i] == '.') {
        ++i;
        count += digits();
    }
    if (count == 0)
        return false;
    if (i + 1 < text.size() && upperAscii(text[i]) == 'E') {
        ++i;
        if (text[i] == '-' || text[i] == '+')
            ++i;
        if (digits() == 0)
            return false;
    }
    return i == text.size();
}

Tokens readTokens(std::string_view text)
{
    return Lexer(text).run();
}

} // namespace kitwright
