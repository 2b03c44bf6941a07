// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/colour_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace kitwright {

namespace {

/// One byte of the colour on the array's scale: 250 is 1.
double scaled(std::uint32_t colour, int shift)
{
    const auto component = static_cast<int>(colour >> shift & 0xFF);
    return component * 4 / 1000.0;
}

/// The digits of a number as d.ddd… times ten to the power of `exponent`.
struct Digits {
    std::string digits; ///< 15 of them, zeros at the end included.
    int exponent = 0;
};

Digits digitsOf(double number)
{
    constexpr int decimals = 14;
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                   std::chars_format::scientific, decimals);
    Digits result;
    const char* position = buffer.data();
    for (; *position != 'e'; ++position) {
        if (*position != '.')
            result.digits += *position;
    }
    ++position;
    if (*position == '+')
        ++position;
    std::from_chars(position, end.ptr, result.exponent);
    return result;
}

} // namespace

std::string numberText(double number)
{
    constexpr int lastDecimal = 15;
    constexpr double largest = std::numeric_limits<double>::max(); // What is beyond has no digits.
    Digits parts = number > 0 ? digitsOf(std::min(number, largest)) : Digits{"0", 0};
    if (parts.exponent < -lastDecimal)
        parts = {"0", 0};
    if (parts.exponent < 0) {
        parts.digits.insert(0, static_cast<std::size_t>(-parts.exponent), '0');
        parts.exponent = 0;
    }
    const std::size_t whole = static_cast<std::size_t>(parts.exponent) + 1;
    if (parts.digits.size() <= whole)
        parts.digits.append(whole + 1 - parts.digits.size(), '0');
    parts.digits.insert(whole, 1, '.');
    const std::size_t last = parts.digits.find_last_not_of('0');
    parts.digits.erase(parts.digits[last] == '.' ? last + 2 : last + 1);
    return parts.digits;
}

std::string colourArrayText(std::uint32_t colour, double alphaPercent)
{
    return '{' + numberText(scaled(colour, 0)) + ',' + numberText(scaled(colour, 8)) + ','
         + numberText(scaled(colour, 16)) + ',' + numberText(alphaPercent / 100) + '}';
}

} // namespace kitwright
