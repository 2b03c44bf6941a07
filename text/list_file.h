// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/text_files.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// One line of a flat list file.
struct ListEntry {
    std::string text;
    std::int16_t kind = 0; ///< 0 when the line has no comma, no number, or one that does not fit.
    std::string help;      ///< What follows the number, without the punctuation in front; shown as a tool tip.
};

/// The number at the start of a text: blanks are skipped, then a sign, digits and one "." as the decimal point are
/// taken as far as they go, and the rest is ignored, an exponent included. 0 when there is none; finite always.
double leadingNumber(std::string_view text);

/// The lines of a flat list file, up to the first `most`: "text" or "text,number help".
std::vector<ListEntry> listEntries(std::string_view text, std::size_t most = mostDataLines);

} // namespace kitwright
