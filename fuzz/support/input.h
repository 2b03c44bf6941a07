// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/code_page.h"

#include <string>
#include <string_view>
#include <vector>

namespace kitwright::fuzzing {

/// Windows-1250, without the desktop library's converter.
const CodePage& codePage();

/// What a file with these bytes reads as.
inline std::string decoded(std::string_view bytes)
{
    return codePage().decode(bytes);
}

/// An input that stands for several texts. A "|" ends a piece, so that seeds can be written by hand.
class Pieces {
public:
    explicit Pieces(std::string_view bytes) : m_rest(bytes) {}

    bool areLeft() const { return !m_rest.empty(); }

    /// The next piece as it stands; empty when none is left.
    std::string_view bytes();

    /// The next piece as text of the code page.
    std::string text() { return decoded(bytes()); }

private:
    std::string_view m_rest;
};

/// The start of the character that a byte position lies in; the text's length for a position behind it.
std::size_t characterStart(std::string_view text, std::size_t position);

/// The characters of a text, each as its own piece of it; CR LF is one.
std::vector<std::string_view> characters(std::string_view text);

} // namespace kitwright::fuzzing
