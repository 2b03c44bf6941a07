// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/list_file.h"
#include "wizards/addon_copy.h"
#include "wizards/class_record.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// What was entered in the weapon or ammunition wizard.
struct ClassBlockInput {
    std::string_view blockName; ///< Of the class around the classes: "CfgWeapons".
    std::span<const ListEntry> catalogue;
    std::span<const ClassRecord> classes;
    std::string_view PatchClassName;

    /// Tells whether there is a file at a path; asked once for each path.
    std::function<bool(const std::string&)> fileExists;

    /// What stands in front of a class with this base class: the declarations of the base class. Empty: nothing does.
    std::function<std::string(const std::string&)> declarations;
};

/// What an OK writes.
struct ClassBlock {
    std::string text;             ///< Goes to the end of the document.
    std::vector<FileCopy> copies; ///< Each file once.
};

/// The block with the ticked classes, each with its ticked properties in the order of the catalogue.
ClassBlock classBlock(const ClassBlockInput& input);

/// The names of the ticked classes, in their order.
std::vector<std::string> tickedNames(std::span<const ClassRecord> classes);

} // namespace kitwright
