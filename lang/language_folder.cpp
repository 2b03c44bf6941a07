// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lang/language_folder.h"

#include "text/letter_case.h"

#include <algorithm>
#include <utility>

namespace kitwright {

std::vector<std::string> ListFilesByExtension(std::vector<std::string> names, std::string_view extension,
                                              std::string_view part)
{
    const std::string ending = upperCased(extension);
    const std::string inside = upperCased(part);
    std::erase_if(names, [&](const std::string& name) {
        const std::string capitals = upperCased(name);
        return !capitals.ends_with(ending) || capitals.find(inside) == std::string::npos;
    });
    std::sort(names.begin(), names.end(), [](const std::string& left, const std::string& right) {
        return std::pair(upperCased(left), left) < std::pair(upperCased(right), right);
    });
    return names;
}

} // namespace kitwright
