// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/letter_case.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace kitwright {

constexpr bool isLineBreak(char character)
{
    return character == '\n' || character == '\r';
}

constexpr bool isBlank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

constexpr bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// What names of the language are made of.
constexpr bool isNameCharacter(char character)
{
    return isDigit(character) || (upperAscii(character) >= 'A' && upperAscii(character) <= 'Z') || character == '_';
}

/// A byte of a letter beyond ASCII.
constexpr bool isBeyondAscii(char character)
{
    return (static_cast<unsigned char>(character) & 0x80) != 0;
}

/// Names are the same in any case of the letters a to z.
inline bool sameName(std::string_view left, std::string_view right)
{
    if (left.size() != right.size())
        return false;
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (left[i] != right[i] && upperAscii(left[i]) != upperAscii(right[i]))
            return false;
    }
    return true;
}

/// The same for names that are `sameName`.
inline std::uint32_t nameHash(std::string_view name)
{
    // Eight bytes at a time, without the bit in which small and capital letters differ.
    constexpr std::uint64_t withoutCase = 0xDFDFDFDFDFDFDFDFU;
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15U;
    std::uint64_t hash = name.size();
    for (std::size_t i = 0; i < name.size(); i += sizeof hash) {
        std::uint64_t block = 0;
        std::memcpy(&block, name.data() + i, std::min(sizeof block, name.size() - i));
        hash = (hash ^ (block & withoutCase)) * factor;
        hash ^= hash >> 32;
    }
    return static_cast<std::uint32_t>(hash);
}

/// For tables that are looked up by name.
struct NameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const { return nameHash(name); }
};

struct SameName {
    using is_transparent = void;
    bool operator()(std::string_view left, std::string_view right) const { return sameName(left, right); }
};

constexpr std::string_view trimmedBlanks(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// True for a whole text that is a number: digits with at most one point, a sign, an exponent, or 0x and digits.
bool isNumber(std::string_view text);

} // namespace kitwright
