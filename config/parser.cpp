// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/characters.h"
#include "config/parser_state.h"

#include <algorithm>

namespace kitwright {

Parser::Parser(const Tokens& tokens, const Macros& macros, BraceRule rule)
    : m_tokens(tokens),
      m_macros(macros),
      m_rule(rule)
{
    m_nodes.reserve(tokens.count() / 4 + 8);
    m_nodes.emplace_back();
}

void Parser::run()
{
    while (m_at < m_tokens.count() && m_tokens.isComment(m_at))
        ++m_at;
    while (kind() != TokenKind::End) {
        m_statementFindings = m_findings.kept().size();
        m_isSilent = false;
        statement();
        for (; m_swallowedBraces > 0; --m_swallowedBraces)
            closeSwallowed();
    }
    openBlocksAtEnd();
    m_nodes[0].end = m_tokens.count();
    m_nodes[0].next = static_cast<NodeIndex>(m_nodes.size());
}

// Tokens

bool Parser::mayBeMacro(TokenIndex token) const
{
    return kind(token) == TokenKind::Word && m_macros.mayBe(textOf(token));
}

bool Parser::isName(TokenIndex token) const
{
    return kind(token) == TokenKind::Word || kind(token) == TokenKind::Number;
}

bool Parser::startsProperty(TokenIndex token) const
{
    if (kind(token) != TokenKind::Word)
        return false;
    const TokenKind next = kind(behind(token));
    return next == TokenKind::Assign || next == TokenKind::Append || next == TokenKind::OpenBracket;
}

bool Parser::startsStatement(TokenIndex token) const
{
    switch (kind(token)) {
    case TokenKind::End:
    case TokenKind::Class:
    case TokenKind::Delete:
    case TokenKind::CloseBrace:
        return true;
    default:
        return startsProperty(token);
    }
}

/// What a string without an end swallowed may explain whatever else is wrong with its statement.
void Parser::silenceStatement()
{
    m_isSilent = true;
    m_findings.removeIf([](const Finding&) { return true; }, m_statementFindings);
}

void Parser::step()
{
    advance();
    if (kind() == TokenKind::Directive)
        passDirectives();
}

void Parser::passWord()
{
    const bool isWord = kind() == TokenKind::Word;
    const Macro* macro = isWord ? m_macros.find(textOf(m_at)) : nullptr;
    m_hidesBraces |= macro != nullptr && macro->isUneven;
    advance();
    if (isWord && kind() == TokenKind::OpenParenthesis)
        passParentheses();
}

void Parser::passParentheses()
{
    int depth = 0;
    do {
        if (kind() == TokenKind::OpenParenthesis)
            ++depth;
        else if (kind() == TokenKind::CloseParenthesis)
            --depth;
        else if (kind() == TokenKind::Semicolon || kind() == TokenKind::OpenBrace || startsStatement(m_at))
            return;
        step();
    } while (depth > 0);
}

// Nodes

NodeIndex Parser::open(NodeKind kind, TokenIndex first)
{
    const auto index = static_cast<NodeIndex>(m_nodes.size());
    Node& node = m_nodes.emplace_back();
    node.first = first;
    node.kind = kind;
    node.parent = m_parent;
    m_parent = index;
    return index;
}

void Parser::close(NodeIndex index)
{
    Node& node = m_nodes[index];
    node.end = std::max(m_last, node.first) + 1;
    node.next = static_cast<NodeIndex>(m_nodes.size());
    m_parent = node.parent;
}

// Statements

void Parser::statement()
{
    if (m_rule != BraceRule::AsWritten)
        endBlocksBefore(m_at);
    switch (kind()) {
    case TokenKind::Directive: {
        const NodeIndex node = open(NodeKind::Directive, m_at);
        enterDirective(false);
        close(node);
        return;
    }
    case TokenKind::Class:
        return classStatement();
    case TokenKind::Delete:
        return deletion();
    case TokenKind::CloseBrace:
        return closeBrace();
    case TokenKind::Semicolon:
        return extraSemicolons();
    case TokenKind::Word:
        return wordStatement();
    case TokenKind::OpenBrace: {
        tell(Message::UnexpectedText, m_tokens.range(m_at), {"{"});
        return openBlock(open(NodeKind::Class, m_at));
    }
    default:
        return unexpected();
    }
}

void Parser::wordStatement()
{
    const TokenIndex next = behind(m_at);
    if (startsProperty(m_at))
        return property();
    if (isMacro(m_at))
        return macroStatement();
    if (misspelledClass())
        return;
    const bool isAlone = m_tokens.isFirstOnLine(next) || kind(next) == TokenKind::Semicolon
                      || kind(next) == TokenKind::OpenParenthesis || startsStatement(next);
    if (!m_macros.isComplete() && isAlone)
        return macroStatement();
    if (isAlone || !(isName(next) || kind(next) == TokenKind::String))
        return unexpected();
    tell(Message::MissingAssign, m_tokens.range(m_at), {textOf(m_at)});
    m_isSilent = true;
    recover();
}

void Parser::macroStatement()
{
    const TokenIndex first = m_at;
    const NodeIndex node = open(NodeKind::Macro, first);
    passWord();
    if (kind() == TokenKind::Assign || kind() == TokenKind::OpenBracket || kind() == TokenKind::Append) {
        m_nodes[node].kind = NodeKind::Property;
        m_nodes[node].isOpaque = true;
        return assignment(node);
    }
    if (kind() == TokenKind::OpenBrace || kind() == TokenKind::Colon) {
        m_nodes[node].kind = NodeKind::Class;
        m_nodes[node].isOpaque = true;
        return behindClassHead(node);
    }
    if (kind() == TokenKind::Semicolon)
        advance();
    close(node);
}

void Parser::deletion()
{
    tell(Message::LaterDelete, m_tokens.range(m_at));
    const NodeIndex node = open(NodeKind::Deletion, m_at);
    step();
    if (isName(m_at))
        step();
    else
        tell(Message::MissingName, m_tokens.range(m_last));
    expectSemicolon();
    close(node);
}

void Parser::extraSemicolons()
{
    const TokenIndex first = m_at;
    while (kind() == TokenKind::Semicolon)
        advance();
    tell(Message::ExtraSemicolon, spanOf(first, m_last), {}, {{spanOf(first, m_last), {}}});
}

void Parser::property()
{
    const NodeIndex node = open(NodeKind::Property, m_at);
    m_nodes[node].name = 0;
    m_nodes[node].isOpaque = isMacro(m_at);
    step();
    assignment(node);
}

void Parser::assignment(NodeIndex node)
{
    if (kind() == TokenKind::OpenBracket)
        brackets(node);
    const bool isAppend = kind() == TokenKind::Append;
    if (isAppend)
        tell(Message::LaterAppend, m_tokens.range(m_at));
    if (isAppend || kind() == TokenKind::Assign) {
        step();
        value(node);
    } else if (kind() == TokenKind::OpenBrace) {
        const std::uint32_t end = m_tokens.end(m_last);
        tell(Message::MissingAssign, headOf(node), {textOf(m_nodes[node].first)}, {{{end, end}, " ="}});
        value(node);
    } else {
        tell(Message::MissingValue, headOf(node), {textOf(m_nodes[node].first)});
        m_isSilent = true;
        recover();
    }
    close(node);
}

void Parser::brackets(NodeIndex node)
{
    m_nodes[node].isArray = true;
    step();
    const TokenIndex first = m_at;
    while (kind() != TokenKind::CloseBracket && kind() != TokenKind::Assign && kind() != TokenKind::OpenBrace
           && kind() != TokenKind::Semicolon && kind() != TokenKind::Append && !startsStatement(m_at))
        step();
    const std::uint32_t end = m_tokens.end(m_last);
    if (m_at != first)
        tell(Message::ArraySize, spanOf(first, m_last), {}, {{spanOf(first, m_last), {}}});
    if (kind() == TokenKind::CloseBracket)
        step();
    else if (m_at == first)
        tell(Message::MissingBracket, m_tokens.range(m_last), {}, {{{end, end}, "]"}});
}

/// Passes over what begins no statement, and tells of what stands on its first line.
void Parser::unexpected()
{
    const TokenIndex first = m_at;
    recover();
    TokenIndex last = first;
    for (TokenIndex i = behind(first); i <= m_last && !m_tokens.isFirstOnLine(i); i = behind(i)) {
        if (kind(i) != TokenKind::Semicolon)
            last = i;
    }
    tell(Message::UnexpectedText, spanOf(first, last), {m_tokens.slice(spanOf(first, last))});
}

/// Goes on behind the next semicolon, or in front of what can begin a statement.
void Parser::recover()
{
    const TokenIndex first = m_at;
    while (kind() != TokenKind::End && (m_at == first || !startsStatement(m_at))
           && kind() != TokenKind::Directive) {
        const bool isEnd = kind() == TokenKind::Semicolon || kind() == TokenKind::OpenString;
        const TokenKind next = kind(behind(m_at));
        if (kind() == TokenKind::OpenBrace && next != TokenKind::String && next != TokenKind::Number)
            return openBlock(open(NodeKind::Class, m_at));
        if (kind() == TokenKind::OpenBrace)
            passBraces();
        else
            advance();
        if (isEnd || (isFirstOnLine() && mayBeMacro(m_at)))
            return;
    }
}

/// Passes over a list in braces that belongs to nothing.
void Parser::passBraces()
{
    int depth = 0;
    do {
        if (kind() == TokenKind::OpenBrace)
            ++depth;
        else if (kind() == TokenKind::CloseBrace)
            --depth;
        else if (kind() == TokenKind::End || kind() == TokenKind::Class || kind() == TokenKind::Semicolon)
            return;
        advance();
    } while (depth > 0);
}

void Parser::expectSemicolon()
{
    passDirectivesOfStatement();
    if (kind() == TokenKind::Semicolon)
        return advance();
    if (mayBeMacro(m_at) || mayBeMacro(m_last) || kind(m_last) == TokenKind::CloseParenthesis)
        return;
    if (!isFirstOnLine() && !startsStatement(m_at) && kind() != TokenKind::Directive) {
        unexpected();
        return;
    }
    tellMissingSemicolon(m_last);
}

// Findings

void Parser::tell(Message message, TextRange range, std::initializer_list<std::string_view> arguments,
                  std::vector<TextEdit> mend)
{
    if (!m_isSilent)
        m_findings.add(message, range, arguments, std::move(mend));
}

void Parser::tellMissingSemicolon(TokenIndex last)
{
    const TextRange range = m_tokens.range(last);
    std::uint32_t start = range.end - 1;
    while (start > range.start && (static_cast<unsigned char>(m_tokens.text()[start]) & 0xC0) == 0x80)
        --start;
    tell(Message::MissingSemicolon, {start, range.end}, {}, {{{range.end, range.end}, ";"}});
}

TextRange Parser::spanOf(TokenIndex first, TokenIndex last) const
{
    return {m_tokens.start(first), m_tokens.end(std::max(first, last))};
}

/// A class up to its name, a property with its brackets.
TextRange Parser::headOf(NodeIndex index) const
{
    const Node& node = m_nodes[index];
    if (node.kind == NodeKind::Property)
        return spanOf(node.first, std::max(node.first, m_last));
    const TokenIndex name = node.first + (node.name == Node::none ? 0 : node.name);
    return m_tokens.range(name);
}

} // namespace kitwright
