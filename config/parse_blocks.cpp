// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/characters.h"
#include "config/parser_state.h"

namespace kitwright {

void Parser::openBlock(NodeIndex node)
{
    m_nodes[node].hasBody = true;
    m_blocks.push_back({node, m_at});
    advance();
}

void Parser::closeBrace()
{
    if (closesNothing())
        return extraBrace();
    advance();
    closeBlock();
}

bool Parser::closesNothing() const
{
    return m_blocks.empty() || (m_rule == BraceRule::ByIndentation && isExtraByIndentation());
}

/// Ends the innermost block, whose brace was just taken.
void Parser::closeBlock()
{
    const NodeIndex node = m_blocks.back().node;
    m_blocks.pop_back();
    m_nodes[node].isClosed = true;
    if (m_nodes[node].name != Node::none || m_nodes[node].isOpaque)
        expectSemicolon();
    else if (kind() == TokenKind::Semicolon)
        advance();
    close(node);
}

/// Ends the innermost block, whose brace a string took.
void Parser::closeSwallowed()
{
    if (m_blocks.empty())
        return;
    m_parent = m_blocks.back().node;
    m_blocks.pop_back();
    close(m_parent);
}

void Parser::extraBrace()
{
    const TextRange range = m_tokens.range(m_at);
    std::uint32_t end = range.end;
    advance();
    if (kind() == TokenKind::Semicolon) {
        end = m_tokens.end(m_at);
        advance();
    }
    tell(Message::ExtraBrace, range, {}, {{{range.start, end}, {}}});
    ++m_braceFaults;
}

/// Ends the innermost block, whose brace is missing in front of the token at the cursor.
void Parser::closeUnclosed()
{
    const Block block = m_blocks.back();
    m_blocks.pop_back();
    ++m_braceFaults;
    const Node& node = m_nodes[block.node];
    const std::string_view text = m_tokens.text();
    TokenIndex last = m_last;
    while (last + 1 < m_at && m_tokens.isComment(last + 1) && !m_tokens.isFirstOnLine(last + 1))
        ++last;
    const std::uint32_t end = m_tokens.end(last);
    std::string brace = text.find("\r\n") == std::string_view::npos ? "\n" : "\r\n";
    const std::uint32_t head = m_tokens.start(node.first);
    std::uint32_t line = head;
    while (line > 0 && !isLineBreak(text[line - 1]))
        --line;
    if (m_tokens.isFirstOnLine(node.first))
        brace += text.substr(line, head - line);
    tell(Message::MissingBrace, headOf(block.node), {m_tokens.slice(headOf(block.node))},
         {{{end, end}, brace + "};"}});
    close(block.node);
}

void Parser::openBlocksAtEnd()
{
    m_hidesBraces |= m_tokens.count() > 0 && kind(m_tokens.count() - 1) == TokenKind::OpenComment;
    while (!m_blocks.empty())
        closeUnclosed();
}

int Parser::columnOf(TokenIndex token) const
{
    constexpr int tab = 4;
    if (!m_tokens.isFirstOnLine(token))
        return noColumn;
    const std::string_view text = m_tokens.text();
    std::uint32_t line = m_tokens.start(token);
    while (line > 0 && !isLineBreak(text[line - 1]))
        --line;
    int column = 0;
    for (; line < m_tokens.start(token); ++line)
        column = text[line] == '\t' ? (column / tab + 1) * tab : column + 1;
    return column;
}

bool Parser::standsAtColumnOf(const Block& block, int column) const
{
    return columnOf(m_nodes[block.node].first) == column || columnOf(block.brace) == column;
}

/// A closing brace that is indented deeper than the block it would close.
bool Parser::isExtraByIndentation() const
{
    const int column = columnOf(m_at);
    const int head = columnOf(m_nodes[m_blocks.back().node].first);
    if (column == noColumn) {
        // "{1, 2}};" behind a list that stands on one line with it, in a block that does not.
        return kind(m_last) == TokenKind::CloseBrace && m_last + 1 == m_at && !m_tokens.isFirstOnLine(m_last)
            && head != noColumn && m_tokens.isFirstOnLine(m_blocks.back().brace);
    }
    return head != noColumn && column > head + 1 && !standsAtColumnOf(m_blocks.back(), column);
}

/// True when the token shows that the innermost block should have ended.
bool Parser::endsOuterBlock(TokenIndex token)
{
    const TokenKind what = kind(token);
    if (m_rule == BraceRule::ByHeadings)
        return what == TokenKind::Class && textOf(behind(token)).starts_with("Cfg")
            && kind(behind(behind(token))) == TokenKind::OpenBrace;

    const int column = columnOf(token);
    const int head = columnOf(m_nodes[m_blocks.back().node].first);
    if (column == noColumn || head == noColumn)
        return false;
    if (what == TokenKind::Class)
        return column <= head;
    if (what != TokenKind::CloseBrace || column >= head)
        return false;
    for (const Block& block : m_blocks) {
        if (standsAtColumnOf(block, column))
            return true;
    }
    return false;
}

void Parser::endBlocksBefore(TokenIndex token)
{
    while (!m_blocks.empty() && endsOuterBlock(token))
        closeUnclosed();
}

} // namespace kitwright
