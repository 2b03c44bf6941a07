// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/sources.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// The first child of a node that is a class of this name, in any letter case.
std::optional<NodeIndex> childClass(const Tree& tree, NodeIndex parent, std::string_view name);

/// The name of the add-on: of the first class in CfgPatches, of the config itself or of what it includes. Nothing when
/// there is none.
std::optional<std::string> patchClassName(const Sources& sources);

/// The array of a name ("units") that the first patch class of a config has.
std::optional<NodeIndex> patchList(const Tree& tree, std::string_view name);

/// The values of an array as they are meant: strings without their quotes, words as they stand.
std::vector<std::string> arrayItems(const Tree& tree, NodeIndex property);

/// The classes around a place of the text, the outermost first. A place in a class's head belongs to the class.
std::vector<NodeIndex> classPath(const Tree& tree, std::uint32_t offset);

/// The class that a name means at a place: of those that begin in front of it in the scopes around the place, the
/// innermost and last one, or else the first one behind it. A class in whose head the place is does not count.
std::optional<NodeIndex> declarationOf(const Tree& tree, std::uint32_t offset, std::string_view name);

/// A class of a config's outline.
struct OutlineEntry {
    NodeIndex node = 0;
    int level = 0;   ///< 0 for the outermost.
    TextRange name;  ///< Empty, at the class's start, where it has none.
    TextRange range; ///< From its first token to its last.
};

/// The classes of a config in their order.
std::vector<OutlineEntry> outline(const Tree& tree);

} // namespace kitwright
