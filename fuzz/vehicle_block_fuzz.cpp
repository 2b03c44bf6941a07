// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/vehicle_block.h"

#include "support/blocks.h"
#include "support/input.h"
#include "support/target.h"

namespace kitwright::fuzzing {

namespace {

/// The vehicle that a property tree and an author's texts make.
struct Vehicle {
    std::string name;
    std::string baseClass;
    std::vector<PropertySetting> settings; ///< For each node of the tree.

    std::string block(const KeywordTree& tree) const
    {
        std::vector<VehicleProperty> properties(1);
        for (const PropertySetting& setting : settings)
            properties.push_back({"", setting.Value});
        return vehicleBlock({name, baseClass, "   class B {};\r\n", tree, usedProperties(settings), properties});
    }
};

} // namespace

/// The pieces are a property tree, the name of the vehicle, its base class, and the values of the tree's nodes.
void tryInput(std::string_view bytes)
{
    Pieces pieces(bytes);
    KeywordTree tree;
    std::string text = pieces.text();
    // The tree is the program's own: braces and bare line feeds in it are its business.
    std::erase_if(text, [](char character) { return character == '{' || character == '}' || character == '\n'; });
    addTreeLines(text, tree);
    Vehicle vehicle{pieces.text(), pieces.text(), {}};
    vehicle.settings = takeSettings(pieces, tree.nodes().size());
    const Vehicle twin{harmless(vehicle.name), harmless(vehicle.baseClass), harmless(vehicle.settings)};
    const std::string twinBlock = twin.block(tree);
    checkShape(twinBlock);
    checkTwin(vehicle.block(tree), twinBlock);
}

} // namespace kitwright::fuzzing
