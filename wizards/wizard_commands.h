// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/context.h"
#include "text/list_file.h"
#include "wizards/class_record.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// Where a wizard's OK writes to.
enum class AddonTarget {
    NewAddon,     ///< A new add-on at a path of its own; the open document's text goes there first.
    CurrentAddon, ///< The end of the open document.
};

/// The lines that tell which steps failed; the other steps were done all the same.
using Failures = std::vector<std::string>;

/// An OK of the weapon or ammunition wizard. The arrays that the spans show must not change meanwhile.
struct ClassOrder {
    AddonTarget target = AddonTarget::CurrentAddon;
    std::string_view blockName; ///< "CfgWeapons"
    std::string_view patchList; ///< The list of `CfgPatches` that takes the names ("weapons[]"); empty: none does.
    bool declareBases = false;  ///< Each class is preceded by the declarations of its base class.
    std::span<const ListEntry> catalogue;
    std::span<const ClassRecord> classes;
};

/// Registers the ticked classes, appends their block to the document and copies the files that they name. A document
/// without a path is saved before files are copied; if it gets none, nothing is copied. A new add-on is only started
/// once the open document has been saved.
Failures writeClasses(Context& context, const ClassOrder& order);

/// An OK of the vehicle wizard; see `VehicleBlockInput` for the properties.
struct VehicleOrder {
    AddonTarget target = AddonTarget::CurrentAddon;
    std::string name;
    std::string baseClass;
    bool declareBase = false;
    const KeywordTree& tree;
    std::span<const VehicleProperty> properties;
};

/// Registers the vehicle and appends its block to the document; a new add-on starts as in `writeClasses`.
Failures writeVehicle(Context& context, const VehicleOrder& order);

/// A value for the vehicle property that a file was chosen for, in double quotes: its path inside the add-on, or,
/// where no such file exists, inside the game's own data. Asks whether to copy the file into the add-on's folder.
struct ModelValue {
    std::string value;
    Failures failures;
};
ModelValue modelValue(Context& context, const std::string& path);

/// An OK of the face wizard.
struct FaceOrder {
    AddonTarget target = AddonTarget::CurrentAddon;
    std::span<const ListEntry> catalogue;
    std::span<const FaceRecord> faces;
};

/// Appends the block of the ticked faces to the document, sees to it that the document has a path, and copies the
/// faces' pictures.
Failures writeFaces(Context& context, const FaceOrder& order);

} // namespace kitwright
