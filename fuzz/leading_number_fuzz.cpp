// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/input.h"
#include "support/target.h"
#include "text/list_file.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

namespace kitwright::fuzzing {

namespace {

/// The characters that make up the number at the start of a text, blanks in front left out.
std::string numberIn(std::string_view text)
{
    std::string number;
    bool point = false;
    for (const char character : text.substr(std::min(text.find_first_not_of(" \t\n"), text.size()))) {
        const bool sign = number.empty() && (character == '-' || character == '+');
        const bool digit = character >= '0' && character <= '9';
        if (!sign && !digit && (character != '.' || point))
            break;
        point = point || character == '.';
        number += character;
    }
    return number;
}

double expectedValue(const std::string& number)
{
    constexpr double largest = std::numeric_limits<double>::max();
    return std::clamp(std::strtod(number.c_str(), nullptr), -largest, largest);
}

} // namespace

/// The input is a text that may start with a number.
void tryInput(std::string_view bytes)
{
    const std::string text = decoded(bytes);
    const std::string number = numberIn(text);
    const double value = leadingNumber(text);
    require(std::isfinite(value), "a number is finite");
    require(value == expectedValue(number), "a number is what the C library takes its characters for");
    require(leadingNumber(" \t\n" + text) == value, "blanks in front are skipped");
    for (const char* behind : {"e5", "x", ",7", " 1", "-1"})
        require(leadingNumber(number + behind) == value || number.find_first_of("0123456789.") == number.npos,
                "what follows a number is ignored");
}

} // namespace kitwright::fuzzing
