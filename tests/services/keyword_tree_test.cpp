// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/keyword_tree.h"

#include <gtest/gtest.h>

namespace kitwright {
namespace {

using Texts = std::vector<std::string>;

KeywordTree treeOf(std::string_view lines)
{
    KeywordTree tree;
    addTreeLines(lines, tree);
    return tree;
}

/// The tree as the path of texts to each entry.
Texts pathsOf(const KeywordTree& tree)
{
    Texts paths;
    for (const TreeNode& node : tree.nodes()) {
        const bool top = node.parent == TreeNode::noParent;
        paths.push_back((top ? "" : paths[static_cast<std::size_t>(node.parent)] + '/') + node.text);
    }
    return paths;
}

TEST(KeywordTree, PutsEachLineUnderTheLastEntryOneLevelUp)
{
    const std::pair<std::string, Texts> cases[] = {
        {"A\r\n   b\r\n      c\r\n   e\r\nF\r\nG\r\n   h  ", {"A", "A/b", "A/b/c", "A/e", "F", "G", "G/h"}},
        {"A\r\n b\r\n  c\r\n    d\r\n     e\r\n       f", {"A", "b", "b/c", "b/d", "b/d/e", "b/d/f"}}, // Rounded.
        {"   a\r\nB\r\n   c", {"B", "B/c"}},
        {"A\r\n   b\r\n            c\r\nD\r\n      e", {"A", "A/b", "A/c", "D", "A/b/e"}}, // Too deep.
        {"A\r\n\tb\r\n\r\n   \tc * d\r\n   \r\n", {"A", "\tb", "", "/\tc * d", "/"}}};
    for (const auto& [lines, paths] : cases)
        EXPECT_EQ(pathsOf(treeOf(lines)), paths);
}

TEST(KeywordTree, GrowsNoDeeperThanTheToolkitCanWalk)
{
    std::string lines = "A\r\n";
    for (int pair = 0; pair < deepestNode; ++pair)
        lines += "   VNORENI0VNORENI1\r\n      VNORENI0VNORENI1\r\n"; // Each below the one before it.
    const KeywordTree tree = treeOf(lines + "B\r\n   c\r\n");
    const auto isDeeper = [](const TreeNode& left, const TreeNode& right) { return left.depth < right.depth; };
    EXPECT_EQ(std::max_element(tree.nodes().begin(), tree.nodes().end(), isDeeper)->depth, deepestNode);
    EXPECT_EQ(pathsOf(tree).back(), "B/c");
}

TEST(KeywordTree, KeysTellPositionLevelAndText)
{
    KeywordTree tree = treeOf("Weapons\r\n   gun\r\n      2gunBeg\r\n\r\n");
    tree.add("deep", 12, 2);
    Texts keys;
    for (const TreeNode& node : tree.nodes())
        keys.push_back(node.key + (node.isHeading() ? " heading" : node.isFirstLevel() ? " first" : ""));
    EXPECT_EQ(keys, (Texts{"1VNORENI0Weapons heading", "2VNORENI1gun first", "3VNORENI22gunBeg",
                           "4VNORENI0 heading", "5VNORENI12deep first"}));
    EXPECT_EQ(tree.find("2GUNbeg"), 2);
    std::string key = "before";
    EXPECT_EQ(SpocitejIndexy("GUN", key, tree), 0);
    EXPECT_EQ(key, "before");
    EXPECT_EQ(SpocitejIndexy("gun", key, tree), 2);
    EXPECT_EQ(key, "3VNORENI22gunBeg");
    EXPECT_EQ(SpocitejIndexy("VNORENI1", key, tree), 2);
    EXPECT_EQ(key, "5VNORENI12deep");
}

} // namespace
} // namespace kitwright
