// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/queries.h"

#include <algorithm>

namespace kitwright {

namespace {

/// The first class in CfgPatches.
std::optional<NodeIndex> patchClass(const Tree& tree)
{
    for (NodeIndex i = tree.firstChild(0); i < tree.endOfChildren(0); i = tree[i].next) {
        if (tree[i].kind != NodeKind::Class || !sameName(tree.nameOf(i), "CfgPatches"))
            continue;
        for (NodeIndex patch = tree.firstChild(i); patch < tree.endOfChildren(i); patch = tree[patch].next) {
            if (tree[patch].kind == NodeKind::Class && tree.nameToken(patch))
                return patch;
        }
    }
    return std::nullopt;
}

/// The innermost node that goes on at a place: what the token in front of it belongs to, unless that token ends it.
NodeIndex nodeAround(const Tree& tree, std::uint32_t offset)
{
    const Tokens& tokens = tree.tokens();
    const TokenIndex behind = offset == 0 ? 0 : tokens.at(offset - 1);
    if (offset == 0 || (behind == 0 && tokens.start(behind) >= offset))
        return 0;
    const TokenIndex token = tokens.start(behind) < offset ? behind : behind - 1;
    NodeIndex node = tree.nodeAt(token);
    const auto isOver = [&](const Node& one) {
        return one.end == token + 1 && tokens.end(token) <= offset
            && (one.isClosed || !one.hasBody || one.kind != NodeKind::Class);
    };
    while (node != 0 && isOver(tree[node]))
        node = tree[node].parent;
    return node;
}

} // namespace

std::optional<NodeIndex> childClass(const Tree& tree, NodeIndex parent, std::string_view name)
{
    for (NodeIndex i = tree.firstChild(parent); i < tree.endOfChildren(parent); i = tree[i].next) {
        if (tree[i].kind == NodeKind::Class && sameName(tree.nameOf(i), name))
            return i;
    }
    return std::nullopt;
}

std::optional<std::string> patchClassName(const Sources& sources)
{
    for (std::size_t i = 0; i < sources.count(); ++i) {
        const Tree& tree = sources[i].tree;
        if (const std::optional<NodeIndex> patch = patchClass(tree))
            return std::string(tree.nameOf(*patch));
    }
    return std::nullopt;
}

std::optional<NodeIndex> patchList(const Tree& tree, std::string_view name)
{
    const std::optional<NodeIndex> patch = patchClass(tree);
    for (NodeIndex i = patch ? tree.firstChild(*patch) : 0; patch && i < tree.endOfChildren(*patch);
         i = tree[i].next) {
        if (tree[i].kind == NodeKind::Property && tree[i].isArray && sameName(tree.nameOf(i), name))
            return i;
    }
    return std::nullopt;
}

std::vector<std::string> arrayItems(const Tree& tree, NodeIndex property)
{
    std::vector<std::string> items;
    const Tree::Span value = tree.valueOf(property);
    for (TokenIndex i = value.first; i < value.end; ++i) {
        const std::string_view text = tree.tokens().textOf(i);
        if (tree.tokens().kind(i) == TokenKind::String)
            items.emplace_back(text.substr(1, text.size() - 2));
        else if (tree.tokens().kind(i) == TokenKind::Word || tree.tokens().kind(i) == TokenKind::Number)
            items.emplace_back(text);
    }
    return items;
}

std::vector<NodeIndex> classPath(const Tree& tree, std::uint32_t offset)
{
    std::vector<NodeIndex> path;
    for (NodeIndex node = nodeAround(tree, offset); node != 0; node = tree[node].parent) {
        if (tree[node].kind == NodeKind::Class)
            path.push_back(node);
    }
    std::reverse(path.begin(), path.end());
    return path;
}

std::optional<NodeIndex> declarationOf(const Tree& tree, std::uint32_t offset, std::string_view name)
{
    std::vector<NodeIndex> scopes = classPath(tree, offset);
    scopes.insert(scopes.begin(), 0);
    std::reverse(scopes.begin(), scopes.end());
    std::optional<NodeIndex> behind;
    for (const NodeIndex scope : scopes) {
        std::optional<NodeIndex> found;
        for (NodeIndex i = tree.firstChild(scope); i < tree.endOfChildren(scope); i = tree[i].next) {
            if (tree[i].kind != NodeKind::Class || !sameName(tree.nameOf(i), name))
                continue;
            const std::uint32_t start = tree.rangeOf(i).start;
            const bool isInHead = start < offset && offset <= tree.tokens().start(tree.bodyOf(i));
            if (start < offset && !isInHead)
                found = i;
            else if (!behind && start >= offset)
                behind = i;
        }
        if (found)
            return found;
    }
    return behind;
}

std::vector<OutlineEntry> outline(const Tree& tree)
{
    std::vector<OutlineEntry> entries;
    std::vector<NodeIndex> open;
    const auto count = static_cast<NodeIndex>(tree.nodes().size());
    for (NodeIndex i = 1; i < count; ++i) {
        while (!open.empty() && i >= tree[open.back()].next)
            open.pop_back();
        if (tree[i].kind != NodeKind::Class)
            continue;
        const TextRange range = tree.rangeOf(i);
        const std::optional<TokenIndex> name = tree.nameToken(i);
        entries.push_back({i, static_cast<int>(open.size()),
                           name ? tree.tokens().range(*name) : TextRange{range.start, range.start}, range});
        open.push_back(i);
    }
    return entries;
}

} // namespace kitwright
