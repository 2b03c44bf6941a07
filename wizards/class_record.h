// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

namespace kitwright {

/// A property of a class that a wizard writes.
struct PropertySetting {
    std::string Value; ///< As typed or browsed for.
    bool Used = false; ///< The property is ticked: only then is it written.
};

/// Which of the properties are ticked.
std::vector<bool> usedProperties(const std::vector<PropertySetting>& settings);

/// A class of the weapon or ammunition wizard.
struct ClassRecord {
    std::string Name;
    std::string BaseClass;
    std::vector<PropertySetting> Properties; ///< One for each entry of the property catalogue, in its order.
    bool ticked = true;                      ///< Only then is it written.
};

/// A face of the face wizard.
struct FaceRecord {
    std::vector<PropertySetting> Properties; ///< One for each entry of the face catalogue, in its order.
    std::string Name;
    bool ticked = true; ///< Only then is it written.
};

/// What the vehicle wizard keeps for a node of its property tree.
struct VehicleProperty {
    std::string ParentCaption; ///< Caption of the node's parent, once the node was clicked.
    std::string Value;         ///< Written as it stands.
    bool ticked = false;       ///< Only then is it written.
};

/// The arrays of the four wizards. Element i of the first three stands for entry i of its window's list; how many
/// there are is the array's size.
struct WizardState {
    std::vector<ClassRecord> WeaponClasses;
    std::vector<ClassRecord> AmmoClasses;
    std::vector<FaceRecord> FaceEntries;

    /// Addressed by a node's position from 1 (element 0 is never used); empty until `NadeklarujPole` has run.
    std::vector<VehicleProperty> VehicleProperties;

    int WeaponCount() const { return static_cast<int>(WeaponClasses.size()); }
    int AmmoCount() const { return static_cast<int>(AmmoClasses.size()); }
    int FaceCount() const { return static_cast<int>(FaceEntries.size()); }
};

} // namespace kitwright
