// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/colour_text.h"

#include "support/input.h"
#include "support/target.h"
#include "text/list_file.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace kitwright::fuzzing {

namespace {

bool isDecimal(std::string_view text)
{
    const std::size_t point = text.find('.');
    return point != text.npos && point > 0 && point + 1 < text.size()
        && text.find_first_not_of("0123456789") == point
        && text.find_first_not_of("0123456789", point + 1) == text.npos;
}

void checkNumber(double number)
{
    const std::string text = numberText(number);
    require(isDecimal(text), "a number is digits, a point, digits");
    require(text.back() != '0' || text[text.size() - 2] == '.', "a number ends with no needless 0");
    require(text.front() != '0' || text[1] == '.', "a number starts with no needless 0");
    const double error = std::abs(std::strtod(text.c_str(), nullptr) - number);
    require(error <= number * 1e-14 || error <= 1e-15, "a number is as exact as 15 digits are");
}

} // namespace

/// The first three bytes are the colour, the rest is a number that stands for the alpha.
void tryInput(std::string_view bytes)
{
    std::uint32_t colour = 0;
    for (std::size_t index = 0; index < 3 && index < bytes.size(); ++index)
        colour |= std::uint32_t{static_cast<unsigned char>(bytes[index])} << (8 * index);
    // The largest numbers of all, cut to 15 digits, would round up to what no number can be.
    constexpr double largest = 1e300;
    const std::string_view rest = bytes.substr(std::min<std::size_t>(3, bytes.size()));
    const double any = std::abs(leadingNumber(rest));
    require(isDecimal(numberText(any)), "any number has digits");
    const double alpha = std::min(any, largest);
    checkNumber(alpha);

    std::string text = colourArrayText(colour, alpha);
    require(text.front() == '{' && text.back() == '}', "a colour stands in braces");
    text.back() = ',';
    std::size_t start = 1;
    for (int shift = 0; shift < 32; shift += 8) {
        const std::size_t end = text.find(',', start);
        require(end != text.npos, "a colour has four numbers");
        const std::string number = text.substr(start, end - start);
        require(isDecimal(number), "each part of a colour is a number");
        const double value = shift < 24 ? (colour >> shift & 0xFF) * 0.004 : alpha / 100;
        require(std::abs(std::strtod(number.c_str(), nullptr) - value) <= 1e-14 * value + 1e-15,
                "each number is its part's value");
        start = end + 1;
    }
    require(start == text.size(), "a colour has no more than four numbers");
}

} // namespace kitwright::fuzzing
