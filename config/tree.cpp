// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/tree.h"

#include <algorithm>

namespace kitwright {

static_assert(sizeof(Node) == 20);

TextRange Tree::rangeOf(NodeIndex index) const
{
    const Node& node = m_nodes[index];
    const std::uint32_t start = m_tokens.start(node.first);
    return {start, node.end > node.first ? m_tokens.end(node.end - 1) : start};
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
    while (first < node.end && m_tokens.kind(first) != TokenKind::Assign
           && m_tokens.kind(first) != TokenKind::Append)
        ++first;
    if (first >= node.end)
        return {node.end, node.end};
    first = m_tokens.behind(first);
    const bool isEnded = m_tokens.kind(node.end - 1) == TokenKind::Semicolon;
    const TokenIndex end = isEnded ? node.end - 1 : node.end;
    return {first, first > end ? first : end};
}

NodeIndex Tree::nodeAt(TokenIndex token) const
{
    const auto behind = std::upper_bound(m_nodes.begin() + 1, m_nodes.end(), token,
                                         [](TokenIndex place, const Node& node) { return place < node.first; });
    auto index = static_cast<NodeIndex>(behind - m_nodes.begin() - 1);
    while (index != 0 && m_nodes[index].end <= token)
        index = m_nodes[index].parent;
    return index;
}

} // namespace kitwright
