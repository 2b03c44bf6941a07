// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/game_classes.h"

#include <array>
#include <utility>

namespace kitwright {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 5> configHeadings = {{
    {"Vehicles", "CfgVehicles"},
    {"Weapons", "CfgWeapons"},
    {"Ammunition", "CfgAmmo"},
    {"Faces", "CfgFaces"},
    {"Magazines", "CfgMagazines"},
}};

/// The class of the config that a heading of the tree, "* Weapons: later versions *", stands for; empty for others.
std::string_view configHeading(std::string_view heading)
{
    const std::size_t start = heading.find_first_not_of("* ");
    const std::string_view words = heading.substr(start == std::string_view::npos ? heading.size() : start);
    const std::string_view word = words.substr(0, words.find_first_of(" :*"));
    for (const auto& [name, config] : configHeadings) {
        if (sameName(name, word))
            return config;
    }
    return {};
}

} // namespace

GameClasses gameClasses(const KeywordTree& classes)
{
    GameClasses game;
    std::vector<int> indexes;
    std::vector<std::string_view> headings;
    for (const TreeNode& node : classes.nodes()) {
        const bool isHeading = node.parent == TreeNode::noParent;
        const auto parent = static_cast<std::size_t>(isHeading ? 0 : node.parent);
        headings.push_back(isHeading ? configHeading(node.text) : headings[parent]);
        const int base = isHeading ? GameClasses::none : indexes[parent];
        indexes.push_back(isHeading ? GameClasses::none : game.add(headings.back(), node.text, base));
    }
    return game;
}

} // namespace kitwright
