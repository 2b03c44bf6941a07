// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace kitwright {

/// The text with the letters a to z and the code page's lower-case letters (ž, č, ł ...) as capitals. The result has
/// as many bytes as the text, so that positions in the one hold in the other.
std::string upperCased(std::string_view text);

/// True when the texts are equal once upper-cased.
bool equalIgnoringCase(std::string_view left, std::string_view right);

/// The capital of an ASCII letter; any other byte as it is.
constexpr char upperAscii(char character)
{
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

/// The text without the spaces at its two ends. Tabs stay.
std::string_view trimmedSpaces(std::string_view text);

} // namespace kitwright
