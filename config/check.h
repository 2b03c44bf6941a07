// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/finding.h"
#include "config/surroundings.h"
#include "config/tree.h"

namespace kitwright {

/// What a check of a config gives.
struct CheckedConfig {
    Tree tree;            ///< Of the config's own text, which must outlive it.
    FindingList findings; ///< All kinds, by their place.
};

/// Reads a config and looks for what is wrong with it, in its syntax and in what it means. A fault is told once. What
/// a macro or an include that cannot be read may explain is not told.
CheckedConfig check(std::string_view text, const Surroundings& surroundings);

} // namespace kitwright
