// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/finding.h"
#include "config/macros.h"
#include "config/tree.h"

namespace kitwright {

/// What a parse of a text gives.
struct ParsedConfig {
    Tree tree;
    FindingList findings; ///< Of the syntax but its directives, in the order of their places.
};

/// Reads the structure of a config. Every text has a tree; a fault is told once, and what follows is read from the
/// next place that can begin something. What a macro may have made is not told of.
ParsedConfig parse(Tokens tokens, const Macros& macros);

/// The same for a text on its own, with the macros that it defines.
ParsedConfig parse(std::string_view text);

} // namespace kitwright
