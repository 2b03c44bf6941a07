// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright::badinput {

/// How the lines of a file look where it is as it should be; a bad file is made of them.
struct Flavour {
    enum class Nesting { Braces, Tree, Quotes };

    std::string sound;      ///< A whole file as it should be.
    std::string head;       ///< What its first line has to be, with its line end; may be empty.
    std::string lineStart;  ///< What a line starts with, in front of a name.
    std::string lineRest;   ///< What follows the name.
    std::string separators; ///< What stands between the parts of a file.
    Nesting nesting = Nesting::Braces;
};

/// Sizes as told below are multiplied by this; 1 for the full ones.
using SizeFactor = double;

/// Names of all the ways in which a file can be bad.
const std::vector<std::string>& kindNames();

/// A bad file; nothing where the kind has no meaning for files of this flavour.
std::optional<std::string> badContent(std::string_view kind, const Flavour& flavour, SizeFactor factor);

} // namespace kitwright::badinput
