// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string_view>

namespace kitwright {

/// Gives the number written in `Retezec` right behind the first `Start`, found in any letter case. 0 when `Start` is
/// not there, no digit follows it, or the number does not fit 16 bits.
std::int16_t DejCislo(std::string_view Retezec, std::string_view Start);

/// The nesting level that a node's key ("4VNORENI2gunBeg") tells.
std::int16_t nodeLevel(std::string_view key);

} // namespace kitwright
