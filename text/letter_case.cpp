// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/letter_case.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace kitwright {

namespace {

/// Lower-case letters of the code page whose capital is the character one before (U+0100 block pairs).
constexpr std::array<std::uint16_t, 32> evenOddPairs = {
    0x103, 0x105, 0x107, 0x10D, 0x10F, 0x111, 0x119, 0x11B, 0x13A, 0x13E, 0x142, 0x144, 0x148,
    0x151, 0x155, 0x159, 0x15B, 0x15F, 0x161, 0x163, 0x165, 0x16F, 0x171, 0x17A, 0x17C, 0x17E,
};

/// The capital of a code point below U+0800.
std::uint16_t capitalOf(std::uint16_t codePoint)
{
    if (codePoint >= 0xE0 && codePoint <= 0xFE && codePoint != 0xF7)
        return static_cast<std::uint16_t>(codePoint - 0x20);
    if (codePoint >= 0x100 && std::find(evenOddPairs.begin(), evenOddPairs.end(), codePoint) != evenOddPairs.end())
        return static_cast<std::uint16_t>(codePoint - 1);
    return codePoint;
}

} // namespace

std::string upperCased(std::string_view text)
{
    std::string result(text);
    for (std::size_t i = 0; i < result.size(); ++i) {
        const auto lead = static_cast<unsigned char>(result[i]);
        if (lead < 0x80) {
            result[i] = upperAscii(result[i]);
        } else if (lead >= 0xC2 && lead <= 0xC5 && i + 1 < result.size()) {
            const auto tail = static_cast<unsigned char>(result[i + 1]);
            const std::uint16_t capital = capitalOf(static_cast<std::uint16_t>((lead & 0x1F) << 6 | (tail & 0x3F)));
            result[i] = static_cast<char>(0xC0 | capital >> 6);
            result[i + 1] = static_cast<char>(0x80 | (capital & 0x3F));
            ++i;
        }
    }
    return result;
}

bool equalIgnoringCase(std::string_view left, std::string_view right)
{
    return left.size() == right.size() && upperCased(left) == upperCased(right);
}

std::string_view trimmedSpaces(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace kitwright
