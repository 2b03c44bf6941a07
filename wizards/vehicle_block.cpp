// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/vehicle_block.h"

#include "wizards/node_level.h"

namespace kitwright {

namespace {

/// Writes the nodes of the tree, keeping track of the nested classes that are still open.
class NodeWriter {
public:
    NodeWriter(const VehicleBlockInput& input, std::string& text) : m_input(input), m_text(text) {}

    void writeAll()
    {
        for (std::size_t index = 0; index < m_input.tree.nodes().size(); ++index)
            writeNode(index);
        closeDownTo(0);
    }

private:
    void writeNode(std::size_t index)
    {
        const TreeNode& node = m_input.tree.nodes()[index];
        const int level = nodeLevel(node.key);
        closeDownTo(level);
        const std::size_t position = index + 1;
        const bool isRoot = index == 0;
        if (isRoot || position >= m_input.properties.size() || !m_input.properties[position].ticked)
            return;
        indent(level);
        if (node.hasChildren && level >= 1) {
            m_text.append("class ").append(node.text).append("\r\n");
            indent(level);
            m_text += "{\r\n";
            m_open.push_back(level);
        } else {
            m_text.append(node.text).append(" = ").append(m_input.properties[position].Value).append(";\r\n");
        }
    }

    /// Ends every open nested class at the level or deeper, innermost first.
    void closeDownTo(int level)
    {
        for (; !m_open.empty() && m_open.back() >= level; m_open.pop_back()) {
            indent(m_open.back());
            m_text += "};\r\n";
        }
    }

    void indent(int level) { m_text.append(static_cast<std::size_t>(level) * 3 + 3, ' '); }

    const VehicleBlockInput& m_input;
    std::string& m_text;
    std::vector<int> m_open; ///< Levels of the open nested classes, outermost first.
};

} // namespace

std::string vehicleBlock(const VehicleBlockInput& input)
{
    std::string text = "\r\n\r\nclass CfgVehicles\r\n{\r\n";
    text += input.declarations;
    text.append("   class ").append(input.name).append(": ").append(input.baseClass).append("\r\n   {\r\n");
    NodeWriter(input, text).writeAll();
    text += "   };\r\n};";
    return text;
}

} // namespace kitwright
