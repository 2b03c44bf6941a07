// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

namespace kitwright {

/// One key of the stringtable with its text in each language.
struct StringEntry {
    /// The key's name, without the prefix that it has in the file.
    std::string Key;

    /// One text per language, in the order of the language list; line breaks are CR LF.
    std::vector<std::string> Texts;

    friend bool operator==(const StringEntry&, const StringEntry&) = default;
};

} // namespace kitwright
