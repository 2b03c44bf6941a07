// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/token.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace kitwright {

/// The index of a node in its tree; 0 is the root.
using NodeIndex = std::uint32_t;

enum class NodeKind : std::uint8_t {
    Root,
    Class, ///< Also a block in braces that has no head; it has no name.
    Property,
    Array,     ///< A list in braces, below its property or the list that it stands in.
    Macro,     ///< A macro that stands for a statement.
    Directive, ///< One that stands between statements.
    Deletion,
};

/// A part of a config. A node comes right before its first child, and behind what lies in front of it in the text.
struct Node {
    static constexpr std::uint8_t none = 0xFF;

    TokenIndex first = 0; ///< Its first token.
    TokenIndex end = 0;   ///< The token behind its last one.
    NodeIndex parent = 0;
    NodeIndex next = 0; ///< The node behind it and all that it holds: its next sibling, if it has one.
    NodeKind kind = NodeKind::Root;
    std::uint8_t name = none;  ///< Tokens from its first one to its name; `none`: it has no name.
    std::uint8_t base = none;  ///< The same to the name of its base.
    bool hasBody : 1 = false;  ///< A class with braces.
    bool isClosed : 1 = false; ///< Its closing brace is there.
    bool isArray : 1 = false;  ///< A property whose name has brackets.
    bool isOpaque : 1 = false; ///< A macro stands in its head: its name and base are not known.
};

/// What a config is made of, as places in its text. The text is not copied and must outlive the tree.
class Tree {
public:
    Tree() = default;
    Tree(Tokens tokens, std::vector<Node> nodes) : m_tokens(std::move(tokens)), m_nodes(std::move(nodes)) {}

    const Tokens& tokens() const { return m_tokens; }
    std::string_view text() const { return m_tokens.text(); }

    /// In the order of the text, each node before what it holds.
    const std::vector<Node>& nodes() const { return m_nodes; }
    const Node& operator[](NodeIndex index) const { return m_nodes[index]; }

    /// The first child of a node and its siblings: `for (i = first(n); i < end(n); i = tree[i].next)`.
    NodeIndex firstChild(NodeIndex index) const { return index + 1; }
    NodeIndex endOfChildren(NodeIndex index) const { return m_nodes[index].next; }

    TextRange rangeOf(NodeIndex index) const;

    /// The token of its name or base; nothing when there is none, or a macro may make it.
    std::optional<TokenIndex> nameToken(NodeIndex index) const { return wordToken(m_nodes[index], &Node::name); }
    std::optional<TokenIndex> baseToken(NodeIndex index) const { return wordToken(m_nodes[index], &Node::base); }

    /// Empty where there is no token.
    std::string_view nameOf(NodeIndex index) const { return textOf(nameToken(index)); }
    std::string_view baseOf(NodeIndex index) const { return textOf(baseToken(index)); }

    /// The opening brace of a class with a body.
    TokenIndex bodyOf(NodeIndex index) const;

    /// The first token of a property's value and the one behind its last; the same when it has none.
    struct Span {
        TokenIndex first = 0;
        TokenIndex end = 0;
    };
    Span valueOf(NodeIndex index) const;

    /// The innermost node that a token belongs to.
    NodeIndex nodeAt(TokenIndex token) const;

    /// Bytes that the tree takes.
    std::size_t memory() const { return m_tokens.memory() + m_nodes.capacity() * sizeof(Node); }

private:
    static std::optional<TokenIndex> wordToken(const Node& node, std::uint8_t Node::*place)
    {
        return node.*place == Node::none || node.isOpaque ? std::nullopt : std::optional(node.first + node.*place);
    }

    std::string_view textOf(std::optional<TokenIndex> token) const
    {
        return token ? m_tokens.textOf(*token) : std::string_view();
    }

    Tokens m_tokens;
    std::vector<Node> m_nodes = std::vector<Node>(1);
};

} // namespace kitwright
