// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "stringtable/table_record.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// What a stringtable file holds besides its records, and how it is written.
struct TableLayout {
    std::string preamble;                ///< Everything in front of the header.
    std::optional<TableRecord> header;   ///< The first line whose first field is LANGUAGE.
    std::optional<std::string> unheaded; ///< The whole text of a file that was read and has no header.
    std::string lineEnd = "\r\n";        ///< For new lines: what the file's first line ends with.
    std::size_t width = 0;               ///< Fields of the widest record, up to its last filled one.
};

/// A record of the table with the lines in front of it that are none: other prefixes, comments, empty lines.
struct TablePart {
    std::string before;
    TableRecord record;
};

/// A stringtable file taken apart without losing a byte.
struct TableFile {
    TableLayout layout;
    std::vector<TablePart> parts;
    std::string tail;      ///< The lines behind the last record.
    bool tooLarge = false; ///< The file has more columns or fields than the editor can show; it is not taken apart.
};

/// The most fields of one line, columns of the header, and fields of all records together.
inline constexpr std::size_t mostFields = 10'000;
inline constexpr std::size_t mostColumns = 1'000;
inline constexpr std::size_t mostTexts = 2'000'000;

TableFile parseTable(std::string_view text);

} // namespace kitwright
