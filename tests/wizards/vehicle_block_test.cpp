// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/vehicle_block.h"

#include "support/scenario.h"

#include <gtest/gtest.h>

#include <regex>

namespace kitwright::testing {
namespace {

/// A "*" behind a line of the tree ticks it; the values are "v1" for node 1 and so on.
std::string blockOf(const std::string& treeLines)
{
    KeywordTree tree;
    std::vector<bool> ticked;
    std::vector<VehicleProperty> properties{1};
    for (const std::string_view line : dataLines(treeLines)) {
        ticked.push_back(line.ends_with('*'));
        properties.push_back({"", "v" + std::to_string(ticked.size())});
    }
    addTreeLines(std::regex_replace(treeLines, std::regex("\\*"), ""), tree);
    return vehicleBlock({"T", "B", "[declared]", tree, ticked, properties});
}

TEST(VehicleBlock, HasTheTickedNodesOfTheTree)
{
    for (const Story& vehicle : readStories("wizards/vehicle_block.txt"))
        EXPECT_EQ(blockOf(vehicle.steps.at(0).cells.at(1)), vehicle.steps.at(1).cells.at(1)) << vehicle.name;
}

} // namespace
} // namespace kitwright::testing
