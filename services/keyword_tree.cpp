// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/keyword_tree.h"

#include "text/letter_case.h"

#include <algorithm>

namespace kitwright {

namespace {

constexpr std::string_view marker = "VNORENI";

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

constexpr std::size_t mostDigits = 10; // No level has more.

/// True for what `keysWith` has an index for.
bool isMarkerWithLevel(std::string_view text)
{
    if (!text.starts_with(marker))
        return false;
    text.remove_prefix(marker.size());
    return text == "-1"
        || (!text.empty() && text.size() <= mostDigits && std::all_of(text.begin(), text.end(), isDigit));
}

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
    indexKey(static_cast<int>(m_nodes.size()) - 1);
}

/// Notes every marker in a key with each number that it may be read with: a text can go on with digits, or hold the
/// marker itself.
void KeywordTree::indexKey(int index)
{
    const std::string& key = m_nodes[static_cast<std::size_t>(index)].key;
    const auto note = [&](std::size_t at, std::size_t length) {
        Matches& matches = m_byLevel[key.substr(at, length)];
        if (matches.last != index)
            matches = {matches.count + 1, index};
    };
    for (std::size_t at = key.find(marker); at != std::string::npos; at = key.find(marker, at + 1)) {
        const std::size_t number = at + marker.size();
        // "-1" is what is asked for when a file returns to the top level.
        if (key.compare(number, 2, "-1") == 0)
            note(at, marker.size() + 2);
        for (std::size_t digits = 1; digits <= mostDigits && isDigit(key[number + digits - 1]); ++digits)
            note(at, marker.size() + digits);
    }
}

KeywordTree::Matches KeywordTree::keysWith(std::string_view text) const
{
    if (isMarkerWithLevel(text)) {
        const auto found = m_byLevel.find(std::string(text));
        return found == m_byLevel.end() ? Matches() : found->second;
    }
    Matches matches;
    for (std::size_t index = 0; index < m_nodes.size(); ++index) {
        if (m_nodes[index].key.find(text) != std::string::npos)
            matches = {matches.count + 1, static_cast<int>(index)};
    }
    return matches;
}

int SpocitejMezery(std::string_view Retezec)
{
    const std::size_t first = Retezec.find_first_not_of(' ');
    return static_cast<int>(first == std::string_view::npos ? Retezec.size() : first);
}

int SpocitejIndexy(std::string_view Key, std::string& Key2, const KeywordTree& Strom)
{
    const KeywordTree::Matches matches = Strom.keysWith(Key);
    if (matches.count > 0)
        Key2 = Strom.nodes()[static_cast<std::size_t>(matches.last)].key;
    return matches.count;
}

void addTreeLines(std::string_view text, KeywordTree& tree)
{
    int previousLevel = 0;
    int parent = TreeNode::noParent;
    std::string parentKey;
    for (const std::string_view line : dataLines(text)) {
        const int level = levelOf(line);
        if (level != previousLevel) {
            previousLevel = level;
            // A key begins with its node's position, from 1.
            if (SpocitejIndexy(std::string(marker) + std::to_string(level - 1), parentKey, tree) > 0)
                parent = std::stoi(parentKey) - 1;
        }
        if (level == 0)
            tree.add(trimmedSpaces(line), level, TreeNode::noParent);
        else if (parent != TreeNode::noParent && tree.nodes()[static_cast<std::size_t>(parent)].depth < deepestNode)
            tree.add(trimmedSpaces(line), level, parent);
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
