// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/parser_state.h"

#include "config/characters.h"
#include "config/lexer.h"

#include <algorithm>

namespace kitwright {

Parser::Parser(const Tokens& tokens, const Macros& macros, BraceRule rule)
    : m_tokens(tokens), m_macros(macros), m_rule(rule)
{
    m_nodes.reserve(tokens.count() / 4 + 8);
    m_nodes.emplace_back();
}

void Parser::run()
{
    while (m_at < m_tokens.count() && m_tokens.isComment(m_at))
        ++m_at;
    while (kind() != TokenKind::End) {
        m_statementFindings = m_findings.findings.size();
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

TokenIndex Parser::behind(TokenIndex token) const
{
    const TokenIndex count = m_tokens.count();
    do
        ++token;
    while (token < count && m_tokens.isComment(token));
    return std::min(token, count);
}

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

void Parser::advance()
{
    if (kind() == TokenKind::OpenString) {
        // What the quote swallowed may explain whatever else is wrong with the statement.
        m_isSilent = true;
        m_findings.total -= m_findings.findings.size() - m_statementFindings;
        m_findings.findings.erase(m_findings.findings.begin() + static_cast<std::ptrdiff_t>(m_statementFindings),
                                  m_findings.findings.end());
    }
    if (kind() != TokenKind::Directive)
        m_last = m_at;
    m_at = behind(m_at);
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

void Parser::passDirectives()
{
    while (kind() == TokenKind::Directive)
        enterDirective(true);
}

/// Passes over directives that stand in front of the semicolon of a statement, or end a condition that it holds.
void Parser::passDirectivesOfStatement()
{
    while (kind() == TokenKind::Directive
           && (kind(behind(m_at)) == TokenKind::Semicolon
               || (!m_conditions.empty() && m_conditions.back().isInStatement)))
        enterDirective(true);
}

void Parser::enterDirective(bool isInStatement)
{
    const Directive directive = readDirective(textOf(m_at));
    if (directive.opensCondition()) {
        m_conditions.push_back({m_blocks.size(), isInStatement});
    } else if (!m_conditions.empty() && directive.kind == DirectiveKind::Endif) {
        m_conditions.pop_back();
    } else if (!m_conditions.empty() && directive.dividesCondition()) {
        // A branch that ends elsewhere than it began is one of several to choose from: the first one is read.
        const Condition& condition = m_conditions.back();
        if (isInStatement || condition.isInStatement || condition.blocks != m_blocks.size())
            return passOtherBranch();
    }
    advance();
}

void Parser::passOtherBranch()
{
    for (std::size_t depth = 0; kind() != TokenKind::End; m_at = behind(m_at)) {
        if (kind() != TokenKind::Directive)
            continue;
        const Directive directive = readDirective(textOf(m_at));
        if (directive.opensCondition())
            ++depth;
        else if (directive.kind == DirectiveKind::Endif && depth-- == 0)
            break;
    }
    if (kind() == TokenKind::End)
        return;
    m_conditions.pop_back();
    advance();
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

void Parser::classStatement()
{
    const NodeIndex node = open(NodeKind::Class, m_at);
    step();
    classHead(node);
}

/// A class head whose first word is misspelled or left out, or the enumeration of later versions.
bool Parser::misspelledClass()
{
    const auto opensBody = [&](TokenIndex token) {
        return kind(token) == TokenKind::OpenBrace
            || (kind(token) == TokenKind::Colon && isName(behind(token))
                && kind(behind(behind(token))) == TokenKind::OpenBrace);
    };
    const TokenIndex next = behind(m_at);
    const std::string_view word = textOf(m_at);
    if (word == "enum" && kind(next) == TokenKind::OpenBrace) {
        tell(Message::LaterEnum, m_tokens.range(m_at));
        const NodeIndex node = open(NodeKind::Macro, m_at);
        step();
        passBraces();
        expectSemicolon();
        close(node);
        return true;
    }
    if (opensBody(next)) {
        const std::uint32_t start = m_tokens.start(m_at);
        tell(Message::MissingClassWord, m_tokens.range(m_at), {word}, {{{start, start}, "class "}});
        classHead(open(NodeKind::Class, m_at));
        return true;
    }
    if (isName(next) && !m_tokens.isFirstOnLine(next) && opensBody(behind(next))) {
        tell(Message::MisspelledClassWord, m_tokens.range(m_at), {word}, {{m_tokens.range(m_at), "class"}});
        classStatement();
        return true;
    }
    return false;
}

/// Takes the word that names a class or its base.
void Parser::className(NodeIndex index, std::uint8_t Node::*place)
{
    Node& node = m_nodes[index];
    if (!isName(m_at) || startsProperty(m_at)) {
        tell(Message::MissingName, m_tokens.range(m_last));
        return;
    }
    const TokenIndex distance = m_at - node.first;
    node.*place = distance < Node::none ? static_cast<std::uint8_t>(distance) : Node::none;
    const TokenIndex word = m_at;
    passWord();
    passDirectives();
    m_nodes[index].isOpaque = m_nodes[index].isOpaque || isMacro(word) || m_last != word;
}

void Parser::classHead(NodeIndex node)
{
    className(node, &Node::name);
    behindClassHead(node);
}

void Parser::behindClassHead(NodeIndex node)
{
    if (kind() == TokenKind::Colon) {
        step();
        className(node, &Node::base);
    }
    const TokenIndex junk = m_at;
    while (kind() != TokenKind::OpenBrace && kind() != TokenKind::Semicolon && !startsStatement(m_at)
           && !(isFirstOnLine() && mayBeMacro(m_at)))
        step();
    if (m_at != junk)
        tell(Message::UnexpectedText, spanOf(junk, m_last), {m_tokens.slice(spanOf(junk, m_last))});
    if (kind() == TokenKind::OpenBrace)
        return openBlock(node);
    if (m_at != junk || m_nodes[node].isOpaque || m_nodes[node].name == Node::none)
        m_isSilent = true;
    withoutBody(node);
}

/// A class whose head no brace follows.
void Parser::withoutBody(NodeIndex node)
{
    const std::string_view name = m_tokens.slice(headOf(node));
    const std::uint32_t end = m_tokens.end(m_last);
    if (kind() == TokenKind::Semicolon) {
        if (m_nodes[node].base == Node::none)
            tell(Message::ForwardDeclaration, headOf(node));
        else
            tell(Message::ClassWithoutBody, headOf(node), {name}, {{{end, end}, " {}"}});
        advance();
    } else if (hasBodyWithoutBrace(node)) {
        tell(Message::ClassWithoutBody, headOf(node), {name}, {{{end, end}, " {"}});
        m_nodes[node].hasBody = true;
        m_blocks.push_back({node, m_nodes[node].first});
        return;
    } else {
        tell(Message::ClassWithoutBody, headOf(node), {name}, {{{end, end}, " {};"}});
    }
    close(node);
}

/// True when what follows a head without a brace is indented like a body.
bool Parser::hasBodyWithoutBrace(NodeIndex node) const
{
    const int column = columnOf(m_nodes[node].first);
    return column != noColumn && columnOf(m_at) > column
        && (kind() == TokenKind::Class || startsProperty(m_at));
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
    while (kind() != TokenKind::End && (m_at == first || !startsStatement(m_at)) && kind() != TokenKind::Directive) {
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
    if (m_isSilent)
        return;
    if (m_findings.total >= mostFindings) {
        ++m_findings.total;
        return;
    }
    Finding finding{message, range, {}, std::move(mend)};
    for (const std::string_view argument : arguments)
        finding.arguments.push_back(shownArgument(argument));
    m_findings.add(std::move(finding));
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

namespace {

/// Strings and comments that are cut off.
void tellOpenTokens(const Tokens& tokens, FindingList& findings)
{
    for (TokenIndex i = 0; i < tokens.count(); ++i) {
        if (tokens.kind(i) == TokenKind::OpenComment) {
            const std::uint32_t start = tokens.start(i);
            findings.add({Message::UnclosedComment, {start, start + 2}, {}, {}});
        } else if (tokens.kind(i) == TokenKind::OpenString) {
            // What ends the statement was hardly meant to be part of the text.
            const std::string_view text = tokens.textOf(i);
            const std::size_t last = text.find_last_not_of(" \t,;}");
            const auto end = tokens.start(i) + static_cast<std::uint32_t>(last + 1);
            const TokenKind next = tokens.kind(i + 1);
            const bool endsStatement = end == tokens.end(i) && (next == TokenKind::Word || next == TokenKind::Class);
            std::vector<TextEdit> mend;
            if (last > 0)
                mend = {{{end, end}, endsStatement ? "\";" : "\""}};
            findings.add({Message::UnclosedString, tokens.range(i), {}, std::move(mend)});
        }
    }
}

bool isAboutBlocks(const Finding& finding)
{
    return finding.message == Message::MissingBrace || finding.message == Message::ExtraBrace;
}

} // namespace

ParsedConfig parse(Tokens tokens, const Macros& macros)
{
    Parser parser(tokens, macros, BraceRule::AsWritten);
    parser.run();
    std::vector<Node> nodes = parser.takeNodes();
    FindingList findings = parser.takeFindings();
    if (parser.hidesBraces()) {
        findings.total -= std::erase_if(findings.findings, isAboutBlocks);
    } else if (parser.braceFaults() > 0) {
        for (const BraceRule rule : {BraceRule::ByIndentation, BraceRule::ByHeadings}) {
            Parser closer(tokens, macros, rule);
            closer.run();
            FindingList closerFindings = closer.takeFindings();
            if (closer.braceFaults() > parser.braceFaults() || closerFindings.total > findings.total)
                continue;
            nodes = closer.takeNodes();
            findings = std::move(closerFindings);
            break;
        }
    }
    if (nodes.capacity() > nodes.size() + nodes.size() / 2)
        nodes.shrink_to_fit();
    tellOpenTokens(tokens, findings);
    findings.sort();
    return {Tree(std::move(tokens), std::move(nodes)), std::move(findings)};
}

ParsedConfig parse(std::string_view text)
{
    Tokens tokens = readTokens(text);
    const Macros macros = macrosOf(tokens);
    return parse(std::move(tokens), macros);
}

} // namespace kitwright
