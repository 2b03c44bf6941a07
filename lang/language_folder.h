// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// Where the language files lie, below the program folder.
inline constexpr std::string_view languageFolder = "/Bfdata/languages/kitwright";

/// The file names that end with `extension` and contain `part`, both without regard to letter case, in alphabetical
/// order. The extension is compared as the name's last characters: no dot is asked for.
std::vector<std::string> ListFilesByExtension(std::vector<std::string> names, std::string_view extension,
                                              std::string_view part);

} // namespace kitwright
