// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/keyword_tree.h"

#include <optional>
#include <string>
#include <string_view>

namespace kitwright {

/// The lines that declare a class of the tree with its ancestors, outermost first, each ended by CR LF:
/// "   class A {};", then "   class B: A {};". Empty for a first-level class. Nothing when the class is not in the tree,
/// or is a heading whose parents reach no first-level class.
std::optional<std::string> baseClassDeclarations(const KeywordTree& classes, std::string_view className);

/// What declaring a class appends to the document: a line break, its declarations, a line break. Empty when
/// `baseClassDeclarations` gives nothing.
std::string baseClassBlock(const KeywordTree& classes, std::string_view className);

} // namespace kitwright
