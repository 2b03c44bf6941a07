// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string_view>

namespace kitwright {

/// Where an ASCII keyword, given in capitals, first occurs in the text in any letter case, from `from` on; npos when
/// nowhere. Positions count from 0.
std::size_t findIgnoringCase(std::string_view text, std::string_view capitals, std::size_t from = 0);

} // namespace kitwright
