// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/tree.h"

namespace kitwright {

static_assert(sizeof(Node) == 20);

TextRange Tree::rangeOf(NodeIndex index) const
{
    const Node& node = m_nodes[index];
    const std::uint32_t start = m_tokens.start(node.first);
    return {start, node.end > node.first ? m_tokens.end(node.end - 1) : start};
}

std::optional<TokenIndex> Tree::nameToken(NodeIndex index) const
{
    const Node& node = m_nodes[index];
    return node.name == Node::none || node.isOpaque ? std::nullopt : std::optional(node.first + node.name);
}

std::optional<TokenIndex> Tree::baseToken(NodeIndex index) const
{
    const Node& node = m_nodes[index];
    return node.base == Node::none || node.isOpaque ? std::nullopt : std::optional(node.first + node.base);
}

TokenIndex Tree::bodyOf(NodeIndex index) const
{
    TokenIndex token = m_nodes[index].first;
    while (m_tokens.kind(token) != TokenKind::OpenBrace && token + 1 < m_nodes[index].end)
        ++token;
    return token;
}

Tree::Span Tree::valueOf(NodeIndex index) const
{
    const Node& node = m_nodes[index];
    TokenIndex first = node.first;
    while (first < node.end && m_tokens.kind(first) != TokenKind::Assign && m_tokens.kind(first) != TokenKind::Append)
        ++first;
    if (first >= node.end)
        return {node.end, node.end};
    first = behind(first);
    const bool isEnded = m_tokens.kind(node.end - 1) == TokenKind::Semicolon;
    const TokenIndex end = isEnded ? node.end - 1 : node.end;
    return {first, first > end ? first : end};
}

TokenIndex Tree::behind(TokenIndex token) const
{
    const TokenIndex count = m_tokens.count();
    do
        ++token;
    while (token < count && m_tokens.isComment(token));
    return token < count ? token : count;
}

} // namespace kitwright
