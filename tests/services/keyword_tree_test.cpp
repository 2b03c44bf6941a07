// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/keyword_tree.h"

#include "services/letter_case.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

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

/// Loads a tree by asking `SpocitejIndexy` for each parent, however long that takes.
KeywordTree slowTree(std::string_view lines)
{
    KeywordTree tree;
    std::string parentKey;
    int previousLevel = 0;
    for (const std::string_view line : dataLines(lines)) {
        const int level = (SpocitejMezery(line) + 1) / 3;
        if (level != previousLevel)
            SpocitejIndexy("VNORENI" + std::to_string(level - 1), parentKey, tree);
        previousLevel = level;
        int parent = static_cast<int>(tree.nodes().size()) - 1;
        while (parent >= 0 && tree.nodes()[static_cast<std::size_t>(parent)].key != parentKey)
            --parent;
        if (level == 0 || parent >= 0)
            tree.add(trimmedSpaces(line), level, level == 0 ? TreeNode::noParent : parent);
    }
    return tree;
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
}

TEST(KeywordTree, AgreesWithTheParentSearchByKeyOnAnyFile)
{
    const Texts texts{"a", "1", "0x", "", "VNORENI1", "VNORENI-1", "2VNORENI25", "12 b", "VNORENI"};
    std::mt19937 random(7);
    for (int round = 0; round < 400; ++round) {
        std::string lines;
        for (auto count = random() % 30; count > 0; --count)
            lines +=
                std::string(random() % (round % 4 == 0 ? 40 : 11), ' ') + texts[random() % texts.size()] + "\r\n";
        ASSERT_EQ(pathsOf(treeOf(lines)), pathsOf(slowTree(lines))) << lines;
    }
}

} // namespace
} // namespace kitwright
