// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/class_declarations.h"

namespace kitwright {

std::optional<std::string> baseClassDeclarations(const KeywordTree& classes, std::string_view className)
{
    const auto found = classes.find(className);
    if (!found)
        return std::nullopt;

    std::string declarations;
    const auto prepend = [&](const std::string& line) { declarations.insert(0, line + "\r\n"); };

    const TreeNode* node = &classes.nodes()[static_cast<std::size_t>(*found)];
    while (!node->isFirstLevel()) {
        if (node->parent == TreeNode::noParent)
            return std::nullopt;
        const TreeNode& parent = classes.nodes()[static_cast<std::size_t>(node->parent)];
        prepend("   class " + node->text + ": " + parent.text + " {};");
        if (parent.isFirstLevel())
            prepend("   class " + parent.text + " {};");
        node = &parent;
    }
    return declarations;
}

std::string baseClassBlock(const KeywordTree& classes, std::string_view className)
{
    const auto declarations = baseClassDeclarations(classes, className);
    return declarations ? "\r\n" + *declarations + "\r\n" : std::string();
}

} // namespace kitwright
