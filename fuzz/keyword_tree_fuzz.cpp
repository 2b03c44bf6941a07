// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/keyword_tree.h"

#include "support/input.h"
#include "support/target.h"
#include "text/letter_case.h"
#include "text/text_files.h"

#include <unordered_set>

namespace kitwright::fuzzing {

namespace {

/// Adds a file's lines by the letter of the rules: each search for a parent looks at every key.
void addLinesSlowly(std::string_view text, KeywordTree& tree)
{
    int previousLevel = 0;
    int parent = TreeNode::noParent;
    for (const std::string_view line : dataLines(text)) {
        const int level = (SpocitejMezery(line) + 1) / 3;
        if (level != previousLevel) {
            previousLevel = level;
            std::string key;
            if (SpocitejIndexy("VNORENI" + std::to_string(level - 1), key, tree) > 0)
                parent = std::stoi(key) - 1;
        }
        if (level == 0 || parent != TreeNode::noParent)
            tree.add(trimmedSpaces(line), level, level == 0 ? TreeNode::noParent : parent);
    }
}

void checkNodes(const KeywordTree& tree)
{
    std::unordered_set<std::string_view> keys;
    std::vector<bool> hasChildren(tree.nodes().size());
    for (std::size_t index = 0; index < tree.nodes().size(); ++index) {
        const TreeNode& node = tree.nodes()[index];
        require(keys.insert(node.key).second, "keys are unique");
        require((node.level == 0) == (node.parent == TreeNode::noParent),
                "headings, and they alone, have no parent");
        require(node.parent < static_cast<int>(index), "parents stand before their children");
        if (node.parent != TreeNode::noParent)
            hasChildren[static_cast<std::size_t>(node.parent)] = true;
        const auto found = tree.find(node.text);
        require(found && *found <= static_cast<int>(index), "the first node of a text is found");
    }
    for (std::size_t index = 0; index < tree.nodes().size(); ++index)
        require(tree.nodes()[index].hasChildren == hasChildren[index], "a node knows whether it has children");
}

} // namespace

/// The pieces are keyword-tree files that go into one tree.
void tryInput(std::string_view bytes)
{
    KeywordTree tree;
    KeywordTree slowTree;
    for (Pieces files(bytes); files.areLeft();) {
        const std::string text = files.text();
        addTreeLines(text, tree);
        addLinesSlowly(text, slowTree);
    }
    checkNodes(tree);
    require(tree.nodes().size() == slowTree.nodes().size(), "every line is created that has a parent");
    for (std::size_t index = 0; index < tree.nodes().size(); ++index) {
        const TreeNode& node = tree.nodes()[index];
        const TreeNode& expected = slowTree.nodes()[index];
        require(node.key == expected.key && node.parent == expected.parent,
                "each line is under its rightful parent");
    }
}

} // namespace kitwright::fuzzing
