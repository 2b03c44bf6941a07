// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/input.h"
#include "wizards/addon_copy.h"
#include "wizards/class_record.h"

#include <string>
#include <string_view>
#include <vector>

namespace kitwright::fuzzing {

/// The text with an "x" for each byte that could mean something in a `config.cpp`; separators of paths stay. A block
/// made of harmless texts shows the shape that hostile ones must not change: both are equally long, and differ only
/// where the harmless one has an "x".
std::string harmless(std::string_view text);
std::vector<PropertySetting> harmless(std::vector<PropertySetting> settings);

/// Requires that the lines of a block made of harmless texts end with CR LF (the last one maybe not) and that its
/// braces pair up.
void checkShape(std::string_view block);

/// Requires that a block differs from its harmless twin in the authors' texts only.
void checkTwin(std::string_view block, std::string_view twin);

/// Copies the files into the add-on of a document among other files, and requires that nothing else changes.
void checkCopies(const std::vector<FileCopy>& copies);

/// The settings of a class: the next pieces of the input. A piece that starts with "-" is not ticked.
std::vector<PropertySetting> takeSettings(Pieces& pieces, std::size_t count);

} // namespace kitwright::fuzzing
