// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/find_text.h"

#include "text/letter_case.h"

#include <algorithm>

namespace kitwright {

std::size_t findIgnoringCase(std::string_view text, std::string_view capitals, std::size_t from)
{
    if (from > text.size())
        return std::string_view::npos;
    const auto found = std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), capitals.begin(),
                                   capitals.end(), [](char left, char right) { return upperAscii(left) == right; });
    return found == text.end() && !capitals.empty() ? std::string_view::npos
                                                    : static_cast<std::size_t>(found - text.begin());
}

} // namespace kitwright
