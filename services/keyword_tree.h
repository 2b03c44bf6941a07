// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/text_files.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kitwright {

/// One entry of a keyword tree.
struct TreeNode {
    static constexpr int noParent = -1;

    std::string text;
    std::string key;       ///< Position from 1, "VNORENI", level, text: "4VNORENI2gunBeg".
    int level = 0;         ///< 0 for headings.
    int parent = noParent; ///< Index of the parent, from 0.
    int depth = 0;         ///< Number of entries above it.
    bool hasChildren = false;

    /// Headings insert nothing when they are clicked.
    bool isHeading() const { return key.find("VNORENI0") != std::string::npos; }

    /// Entries right below a heading, and those whose level begins with the digit 1 as well.
    bool isFirstLevel() const { return key.find("VNORENI1") != std::string::npos; }
};

/// The entries of a keyword-tree file, in the order of its lines.
class KeywordTree {
public:
    const std::vector<TreeNode>& nodes() const { return m_nodes; }

    /// Index of the first node whose text equals `text` without regard to letter case, or nothing.
    std::optional<int> find(std::string_view text) const;

    /// Adds a node; `parent` is an index from 0, or TreeNode::noParent for a top-level one.
    void add(std::string_view text, int level, int parent);

    /// The nodes whose key contains a text.
    struct Matches {
        int count = 0;
        int last = TreeNode::noParent; ///< Index of the last of them.
    };

    /// The time does not grow with the tree when `text` is "VNORENI" and a level, or "VNORENI-1".
    Matches keysWith(std::string_view text) const;

private:
    void indexKey(int index);

    std::vector<TreeNode> m_nodes;
    std::unordered_map<std::string, Matches> m_byLevel; ///< By each text that begins with the marker in some key.
};

/// The number of spaces at the start of a text.
int SpocitejMezery(std::string_view Retezec);

/// Counts the nodes whose key contains `Key` and sets `Key2` to the key of the last of them; `Key2` stays when there
/// is none.
int SpocitejIndexy(std::string_view Key, std::string& Key2, const KeywordTree& Strom);

/// The most entries that an entry of a tree can have above it; the toolkit walks through trees by recursion.
inline constexpr int deepestNode = 1'000;

/// Adds the lines of a keyword-tree file to the tree. A line goes under the last entry one level up; where none has
/// been seen yet, under the last parent that was found. A line without any is not created, nor is one that would lie
/// deeper than `deepestNode`.
void addTreeLines(std::string_view text, KeywordTree& tree);

/// Loads a keyword-tree file into a tree.
Failure NactiTridy(const TextFiles& texts, const std::string& path, KeywordTree& tree);

} // namespace kitwright
