// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace kitwright {

/// Looks in the text of a `config.cpp` for the first class declared inside its `CfgPatches` block and puts its name
/// into `PatchClassName`, which keeps its value when there is none. A character scanner, not a parser: it knows
/// braces, the word "class" and the separators space, CR and LF.
void ReadPatchClassName(std::string_view text, std::string& PatchClassName);

} // namespace kitwright
