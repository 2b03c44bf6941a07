// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kitwright {

/// One character read from UTF-8 text.
struct Utf8Character {
    char32_t codePoint = 0;
    std::size_t length = 1; ///< Bytes it takes; 1 for a byte that starts no character.
    bool valid = false;
};

/// The character that starts at `offset` (from 0), which must lie inside the text.
Utf8Character utf8At(std::string_view text, std::size_t offset);

/// The number of ASCII characters in a row from `offset` on.
std::size_t asciiRun(std::string_view text, std::size_t offset);

/// The start of a UTF-8 text, `mostBytes` long at most and without a part of a character at its end.
std::string_view cutUtf8(std::string_view text, std::size_t mostBytes);

/// Appends the UTF-8 form of a code point.
void appendUtf8(std::string& text, char32_t codePoint);

} // namespace kitwright
