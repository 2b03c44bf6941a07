// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/node_level.h"

#include "text/letter_case.h"

#include <charconv>
#include <string>

namespace kitwright {

std::int16_t DejCislo(std::string_view Retezec, std::string_view Start)
{
    // Upper-casing keeps the length, so the place found is the place in the text itself.
    const std::size_t found = upperCased(Retezec).find(upperCased(Start));
    if (found == std::string::npos)
        return 0;
    const std::string_view rest = Retezec.substr(found + Start.size());
    // A minus sign is no digit here, though the conversion would take it.
    if (rest.empty() || rest.front() == '-')
        return 0;
    std::int16_t number = 0;
    std::from_chars(rest.data(), rest.data() + rest.size(), number);
    return number;
}

std::int16_t nodeLevel(std::string_view key)
{
    constexpr std::string_view marker = "VNORENI";
    const std::size_t start = key.find(marker);
    return start == std::string_view::npos ? std::int16_t(0) : DejCislo(key.substr(start), marker);
}

} // namespace kitwright
