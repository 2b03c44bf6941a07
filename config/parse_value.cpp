// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/characters.h"
#include "config/parser_state.h"

#include <algorithm>
#include <array>

namespace kitwright {

namespace {

/// Quotes of word processors; the file's code page has them.
constexpr std::array<std::string_view, 7> typographicQuotes = {"„", "“", "”", "‘", "’", "«", "»"};

std::size_t quoteAtStart(std::string_view word)
{
    for (const std::string_view quote : typographicQuotes) {
        if (word.starts_with(quote))
            return quote.size();
    }
    return 0;
}

std::size_t quoteAtEnd(std::string_view word)
{
    for (const std::string_view quote : typographicQuotes) {
        if (word.ends_with(quote))
            return quote.size();
    }
    return 0;
}

/// A word that was meant to be a number: digits with too many points.
bool isBrokenNumber(std::string_view word)
{
    return word.find_first_not_of("0123456789.+-") == std::string_view::npos
        && std::count(word.begin(), word.end(), '.') > 1 && std::any_of(word.begin(), word.end(), isDigit);
}

} // namespace

void Parser::value(NodeIndex node)
{
    if (kind() != TokenKind::OpenBrace)
        return scalar(node);
    if (!m_nodes[node].isArray && !m_nodes[node].isOpaque) {
        const TextRange name = m_tokens.range(m_nodes[node].first);
        tell(Message::ArrayWithoutBrackets, name, {m_tokens.slice(name)}, {{{name.end, name.end}, "[]"}});
    }
    if (!array())
        return;
    if (kind() == TokenKind::CloseBrace && closesNothing()) {
        tell(Message::ExtraBrace, m_tokens.range(m_at), {}, {{m_tokens.range(m_at), {}}});
        ++m_braceFaults;
        advance();
    }
    expectSemicolon();
}

void Parser::scalar(NodeIndex node)
{
    const TokenIndex first = m_at;
    const TextRange name = m_tokens.range(m_nodes[node].first);
    if (kind() == TokenKind::Semicolon || (startsStatement(m_at) && (isFirstOnLine() || !startsProperty(m_at)))) {
        tell(Message::MissingValue, name, {m_tokens.slice(name)});
        if (kind() == TokenKind::Semicolon)
            advance();
        return;
    }
    if (m_nodes[node].isArray && !mayBeMacro(m_at))
        wrapInBraces(node, first);
    const TokenIndex end = scalarTokens();
    if (kind() == TokenKind::Semicolon) {
        if (!m_nodes[node].isArray)
            judgeScalar(first, end);
        advance();
    } else if (kind(m_last) == TokenKind::OpenString) {
        behindOpenString(0);
    } else if (!mayBeMacro(m_last) && !mayBeMacro(m_at) && kind(m_last) != TokenKind::CloseParenthesis) {
        tellMissingSemicolon(m_last);
        m_isSilent = true;
        if (!startsStatement(m_at) && kind() != TokenKind::Directive)
            recover();
    }
}

/// Takes the tokens of a value up to its semicolon, or to what shows that it is missing; returns the one behind them.
TokenIndex Parser::scalarTokens()
{
    const TokenIndex first = m_at;
    while (kind() != TokenKind::Semicolon) {
        if (m_at != first && (startsStatement(m_at) || isFirstOnLine() || kind() == TokenKind::Directive))
            break;
        const bool isCutOff = kind() == TokenKind::OpenString;
        if (kind() == TokenKind::OpenBrace)
            passBraces();
        else
            passWord();
        if (isCutOff)
            break;
    }
    const TokenIndex end = m_last + 1;
    passDirectivesOfStatement();
    return end;
}

void Parser::judgeScalar(TokenIndex first, TokenIndex end)
{
    bool isUnclear = false;
    TokenIndex bad = end;
    for (TokenIndex i = first; i < end; i = behind(i)) {
        const TokenKind what = kind(i);
        isUnclear = isUnclear || mayBeMacro(i);
        const bool isFine = what == TokenKind::Word || what == TokenKind::Number || what == TokenKind::Colon
                         || what == TokenKind::OpenParenthesis || what == TokenKind::CloseParenthesis
                         || (what == TokenKind::String && i == first);
        if (bad == end && (!isFine || (i != first && kind(first) == TokenKind::String)))
            bad = i;
    }
    if (isUnclear)
        return;
    const TokenIndex last = end - 1;
    const TextRange whole = spanOf(first, last);
    if (quoteAtStart(textOf(first)) > 0) {
        const std::uint32_t start = whole.start + static_cast<std::uint32_t>(quoteAtStart(textOf(first)));
        const std::uint32_t stop = whole.end - static_cast<std::uint32_t>(quoteAtEnd(textOf(last)));
        if (start <= stop)
            tell(Message::TypographicQuotes, whole, {}, {{{whole.start, start}, "\""}, {{stop, whole.end}, "\""}});
    } else if (bad == end) {
        if (first == last)
            judgeWord(first);
    } else if (kind(first) == TokenKind::String) {
        tell(Message::TextBehindString, spanOf(bad, last), {m_tokens.slice(spanOf(bad, last))});
    } else if (kind(bad) == TokenKind::Comma && bad == behind(first) && behind(bad) == last
               && kind(first) == TokenKind::Number && kind(last) == TokenKind::Number) {
        tell(Message::DecimalComma, whole, {}, {{spanOf(bad, last), "." + std::string(textOf(last))}});
    } else {
        tell(Message::BadValue, whole, {m_tokens.slice(whole)});
    }
}

void Parser::judgeWord(TokenIndex word)
{
    if (kind(word) == TokenKind::Word && isBrokenNumber(textOf(word)))
        tell(Message::BadNumber, m_tokens.range(word), {textOf(word)});
}

/// Tells that a value stands where an array should; a value that its semicolon follows at once is put in braces.
void Parser::wrapInBraces(NodeIndex node, TokenIndex first)
{
    const TextRange name = m_tokens.range(m_nodes[node].first);
    const TextRange range = m_tokens.range(first);
    std::vector<TextEdit> mend;
    if (kind(behind(first)) == TokenKind::Semicolon && kind(first) != TokenKind::OpenString)
        mend = {{{range.start, range.start}, "{"}, {{range.end, range.end}, "}"}};
    tell(Message::BracketsWithoutArray, name, {m_tokens.slice(name)}, std::move(mend));
}

/// Takes a list in braces with the lists in it. False when the statement is over, since a brace is missing.
bool Parser::array()
{
    m_list = {m_at};
    for (;;) {
        switch (kind()) {
        case TokenKind::OpenBrace:
            openList();
            break;
        case TokenKind::CloseBrace:
            if (closeList())
                return true;
            break;
        case TokenKind::Comma:
            if (m_list.former != ListPart::Value)
                tellOfList(Message::MissingElement, m_tokens.range(m_at));
            m_list.former = ListPart::Comma;
            step();
            break;
        case TokenKind::OpenString:
            if (openStringInList())
                return false;
            break;
        case TokenKind::Semicolon:
            if (!isWrongSeparator())
                return unclosedList();
            wrongSeparator();
            break;
        default:
            if (startsStatement(m_at))
                return unclosedList();
            element();
        }
    }
}

void Parser::openList()
{
    beginElement();
    m_list.former = ListPart::Nothing;
    open(NodeKind::Array, m_at);
    ++m_list.depth;
    step();
}

/// True once the outermost list is closed.
bool Parser::closeList()
{
    if (m_list.former == ListPart::Comma)
        tellOfList(Message::TrailingComma, m_tokens.range(m_last), {}, {{m_tokens.range(m_last), {}}});
    m_list.former = ListPart::Value;
    m_nodes[m_parent].isClosed = true;
    const bool isOutermost = --m_list.depth == 0;
    if (isOutermost)
        advance();
    else
        step();
    close(m_parent);
    return isOutermost;
}

void Parser::beginElement()
{
    const bool follows = m_list.former == ListPart::Value && !mayBeMacro(m_last) && !mayBeMacro(m_at);
    m_list.former = ListPart::Value;
    const bool isBareText = kind(m_last) == TokenKind::Word && kind() == TokenKind::Word && !isFirstOnLine();
    if (!follows || isBareText)
        return;
    const std::uint32_t end = m_tokens.end(m_last);
    tellOfList(Message::MissingComma, m_tokens.range(m_at), {textOf(m_at)}, {{{end, end}, ","}});
}

void Parser::element()
{
    const bool isWord = kind() == TokenKind::Word;
    if (!isWord && kind() != TokenKind::String && kind() != TokenKind::Number
        && kind() != TokenKind::OpenParenthesis) {
        tellOfList(Message::UnexpectedText, m_tokens.range(m_at), {textOf(m_at)});
        return step();
    }
    beginElement();
    if (isWord && quoteAtStart(textOf(m_at)) > 0 && !mayBeMacro(m_at))
        tellOfList(Message::TypographicQuotes, m_tokens.range(m_at));
    else if (!mayBeMacro(m_at))
        judgeWord(m_at);
    if (kind() == TokenKind::OpenParenthesis)
        passParentheses();
    else
        passWord();
    passDirectives();
}

/// Takes a string without an end; true when it took the end of the list, too.
bool Parser::openStringInList()
{
    const std::string_view text = trimmedBlanks(textOf(m_at));
    const bool isEnd = text.ends_with(';') || text.find('}') != std::string_view::npos;
    m_list.former = ListPart::Value;
    step();
    if (!isEnd)
        return false;
    behindOpenString(m_list.depth);
    closeLists();
    return true;
}

/// Whether the semicolon at the cursor stands between values of the list rather than behind it.
bool Parser::isWrongSeparator() const
{
    const TokenIndex next = behind(m_at);
    switch (kind(next)) {
    case TokenKind::String:
    case TokenKind::Number:
    case TokenKind::OpenBrace:
        return true;
    case TokenKind::CloseBrace: {
        // A list on one line lost its own brace; in one of several lines a line ends with the wrong sign.
        TokenIndex token = m_list.outer;
        while (token < m_at && (token == m_list.outer || !m_tokens.isFirstOnLine(token)))
            ++token;
        return !m_tokens.isFirstOnLine(next) || token < m_at;
    }
    case TokenKind::Word: {
        const TokenKind after = kind(behind(next));
        return (after == TokenKind::Comma || after == TokenKind::CloseBrace) && !mayBeMacro(next);
    }
    default:
        return false;
    }
}

void Parser::wrongSeparator()
{
    const bool isLast = kind(behind(m_at)) == TokenKind::CloseBrace;
    tellOfList(Message::SemicolonInArray, m_tokens.range(m_at), {}, {{m_tokens.range(m_at), isLast ? "" : ","}});
    m_list.former = isLast ? ListPart::Value : ListPart::Comma;
    step();
}

bool Parser::unclosedList()
{
    const std::uint32_t end = m_tokens.end(m_last);
    const bool isEnded = kind() == TokenKind::Semicolon;
    tellOfList(Message::MissingArrayBrace, m_tokens.range(m_list.outer), {},
               {{{end, end}, std::string(m_list.depth, '}') + (isEnded ? "" : ";")}});
    closeLists();
    if (isEnded)
        advance();
    return false;
}

void Parser::closeLists()
{
    for (; m_list.depth > 0; --m_list.depth)
        close(m_parent);
}

/// One fault is told of a list; the others are likely to come from it.
void Parser::tellOfList(Message message, TextRange range, std::initializer_list<std::string_view> arguments,
                        std::vector<TextEdit> mend)
{
    if (!m_list.isTold)
        tell(message, range, arguments, std::move(mend));
    m_list.isTold = true;
}

/// The braces that a string without an end took close lists and blocks all the same.
void Parser::behindOpenString(std::size_t openLists)
{
    const std::string_view text = textOf(m_last);
    const auto closing = static_cast<std::size_t>(std::count(text.begin(), text.end(), '}'));
    const std::size_t opening = openLists + static_cast<std::size_t>(std::count(text.begin(), text.end(), '{'));
    m_swallowedBraces = closing > opening ? closing - opening : 0;
}

} // namespace kitwright
