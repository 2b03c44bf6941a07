// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/keyword_tree.h"

#include "text/letter_case.h"

#include <algorithm>
#include <unordered_map>

namespace kitwright {

namespace {

constexpr std::string_view marker = "VNORENI";

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Answers "which key seen last contains the marker followed by this number" in constant time, so that loading a
/// tree stays linear. It knows, for every number that a marker in some key starts with, the last such node.
class LastByNumber {
public:
    void note(const std::string& key, int node)
    {
        for (std::size_t at = key.find(marker); at != std::string::npos; at = key.find(marker, at + 1)) {
            const std::size_t start = at + marker.size();
            // "-1" is what is asked for when a file returns to the top level.
            if (key.compare(start, 2, "-1") == 0)
                m_last["-1"] = node;
            for (std::size_t length = 1; length <= maxDigits && isDigit(key[start + length - 1]); ++length)
                m_last[key.substr(start, length)] = node;
        }
    }

    std::optional<int> find(int number) const
    {
        const auto found = m_last.find(std::to_string(number));
        return found == m_last.end() ? std::nullopt : std::optional(found->second);
    }

private:
    static constexpr std::size_t maxDigits = 10; // No level has more.

    std::unordered_map<std::string, int> m_last;
};

/// Indentation divided by 3, rounded to the nearest whole number.
int levelOf(std::string_view line)
{
    return (SpocitejMezery(line) + 1) / 3;
}

} // namespace

std::optional<int> KeywordTree::find(std::string_view text) const
{
    const std::string wanted = upperCased(text);
    const auto found = std::find_if(m_nodes.begin(), m_nodes.end(), [&](const TreeNode& node) {
        return node.text.size() == wanted.size() && upperCased(node.text) == wanted;
    });
    return found == m_nodes.end() ? std::nullopt : std::optional(static_cast<int>(found - m_nodes.begin()));
}

void KeywordTree::add(std::string_view text, int level, int parent)
{
    TreeNode node;
    node.text = text;
    node.level = level;
    node.parent = parent;
    node.key = std::to_string(m_nodes.size() + 1);
    node.key.append(marker).append(std::to_string(level)).append(text);
    if (parent != TreeNode::noParent) {
        TreeNode& above = m_nodes[static_cast<std::size_t>(parent)];
        above.hasChildren = true;
        node.depth = above.depth + 1;
    }
    m_nodes.push_back(std::move(node));
}

int SpocitejMezery(std::string_view Retezec)
{
    const std::size_t first = Retezec.find_first_not_of(' ');
    return static_cast<int>(first == std::string_view::npos ? Retezec.size() : first);
}

int SpocitejIndexy(std::string_view Key, std::string& Key2, const KeywordTree& Strom)
{
    int count = 0;
    const TreeNode* last = nullptr;
    for (const TreeNode& node : Strom.nodes()) {
        if (node.key.find(Key) != std::string::npos) {
            ++count;
            last = &node;
        }
    }
    if (last)
        Key2 = last->key;
    return count;
}

void addTreeLines(std::string_view text, KeywordTree& tree)
{
    LastByNumber lastByNumber;
    for (std::size_t node = 0; node < tree.nodes().size(); ++node)
        lastByNumber.note(tree.nodes()[node].key, static_cast<int>(node));

    int previousLevel = 0;
    std::optional<int> parent;
    for (const std::string_view line : dataLines(text)) {
        const int level = levelOf(line);
        if (level != previousLevel) {
            previousLevel = level;
            if (const auto found = lastByNumber.find(level - 1))
                parent = found;
        }
        if (level > 0 && (!parent || tree.nodes()[static_cast<std::size_t>(*parent)].depth >= deepestNode))
            continue;
        tree.add(trimmedSpaces(line), level, level > 0 ? *parent : TreeNode::noParent);
        lastByNumber.note(tree.nodes().back().key, static_cast<int>(tree.nodes().size()) - 1);
    }
}

Failure NactiTridy(const TextFiles& texts, const std::string& path, KeywordTree& tree)
{
    const Outcome<std::string> text = texts.read(path);
    if (!text)
        return text.reason();
    addTreeLines(*text, tree);
    return linesLeftOut(path, *text);
}

} // namespace kitwright
