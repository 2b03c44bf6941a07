// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/parser_state.h"

namespace kitwright {

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
    return column != noColumn && columnOf(m_at) > column && (kind() == TokenKind::Class || startsProperty(m_at));
}

} // namespace kitwright
