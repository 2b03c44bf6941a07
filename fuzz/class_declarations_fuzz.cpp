// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/class_declarations.h"

#include "support/input.h"
#include "support/target.h"

namespace kitwright::fuzzing {

namespace {

/// The declarations of a node, from itself up to its first-level class.
std::optional<std::string> declared(const KeywordTree& tree, const TreeNode& node)
{
    if (node.isFirstLevel())
        return "";
    if (node.parent == TreeNode::noParent)
        return std::nullopt;
    const TreeNode& parent = tree.nodes()[static_cast<std::size_t>(node.parent)];
    const auto above = declared(tree, parent);
    if (!above)
        return std::nullopt;
    const std::string root = parent.isFirstLevel() ? "   class " + parent.text + " {};\r\n" : "";
    return *above + root + "   class " + node.text + ": " + parent.text + " {};\r\n";
}

void checkClass(const KeywordTree& tree, const std::string& name)
{
    const auto found = tree.find(name);
    const auto expected = found ? declared(tree, tree.nodes()[static_cast<std::size_t>(*found)]) : std::nullopt;
    require(baseClassDeclarations(tree, name) == expected,
            "a class is declared with its ancestors, outermost first");
    require(baseClassBlock(tree, name) == (expected ? "\r\n" + *expected + "\r\n" : ""),
            "a block is the declarations between line breaks");
}

} // namespace

/// The first piece is a class tree, the second the name of a class.
void tryInput(std::string_view bytes)
{
    Pieces pieces(bytes);
    KeywordTree tree;
    addTreeLines(pieces.text(), tree);
    checkClass(tree, pieces.text());
    constexpr std::size_t enough = 50;
    for (std::size_t index = 0; index < tree.nodes().size() && index < enough; ++index)
        checkClass(tree, tree.nodes()[index].text);
}

} // namespace kitwright::fuzzing
