// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>

namespace kitwright {

/// A number of 0 or more as a config file writes it: digits, ".", and at least one decimal, at most 15 significant
/// digits in all, no exponent. "0.0" for what is too small to show in the first 15 decimals; an infinite one is the
/// largest that there is.
std::string numberText(double number);

/// The colour array {red,green,blue,alpha} of a colour 0x00BBGGRR, in steps of 0.004, and an alpha in percent.
std::string colourArrayText(std::uint32_t colour, double alphaPercent);

} // namespace kitwright
