// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/finding.h"

#include <string_view>

namespace kitwright {

/// The line end that a text uses.
std::string_view lineEndOf(std::string_view text);

/// The start of the line that a place stands on.
std::uint32_t lineStart(std::string_view text, std::uint32_t place);

/// The blanks between the start of the line and a place; empty when something else stands there.
std::string_view indentationOf(std::string_view text, std::uint32_t place);

/// Takes a range away, with its whole line when nothing else stands there.
TextEdit removalOf(std::string_view text, TextRange range);

/// Puts whole lines in front of what starts at a place, as deep as that, or the same on one line with it.
TextEdit linesBefore(std::string_view text, std::uint32_t place, const std::vector<std::string>& lines);

} // namespace kitwright
