// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/keyword_tree.h"
#include "wizards/class_record.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// What was entered in the vehicle wizard.
struct VehicleBlockInput {
    std::string_view name;
    std::string_view baseClass;
    std::string_view declarations; ///< Of the base class; stands in front of the vehicle's class.
    const KeywordTree& tree;
    std::span<const VehicleProperty> properties; ///< For each node, from 1; a node without one is not written.
};

/// The block with the vehicle's class. A ticked node with children becomes a nested class, any other ticked node a
/// property; the root is left out. A node that is not ticked still ends the nested classes at its level or deeper.
/// The text has no line end behind its last line.
std::string vehicleBlock(const VehicleBlockInput& input);

} // namespace kitwright
