// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// What the keys of the table's records begin with in the file.
inline constexpr std::string_view keyPrefix = "$STRM_";

/// A line of a stringtable as it stands in the file. A quoted field may run over several physical lines.
struct TableRecord {
    std::vector<std::string> fields; ///< With their quotes and blanks, without the commas; at least one.
    std::string lineEnd;             ///< CR LF, CR or LF; empty for a last line without an end.

    friend bool operator==(const TableRecord&, const TableRecord&) = default;
};

/// The record byte for byte, its line end included.
std::string rawText(const TableRecord& record);

/// What a field says: a quoted one without its quotes and the blanks around them, any other as it stands.
std::string fieldText(std::string_view field);

/// The field with another text: quotes and the blanks around them stay, a text that would not be read back as one
/// field gets quotes, and line breaks are bare LF where the field's were.
std::string withFieldText(std::string_view field, std::string_view text);

/// Puts quotes around the fields whose first character is a quote that nothing closes. To be done to a record whose
/// other fields change: such a quote could pair up with one that a new text brings.
void settleOpenQuotes(TableRecord& record);

/// True for a record of the table, whatever follows the prefix.
bool isTableRecord(const TableRecord& record);

/// The key of a table record, without its prefix and the blanks around it.
std::string recordKey(const TableRecord& record);

/// True for a line that holds texts under a key, of this table or with another prefix; false for comments,
/// empty lines and free text.
bool looksLikeRecord(const TableRecord& record);

/// True for a line of blanks.
bool isBlank(const TableRecord& record);

/// Takes the line at `position`, which must lie inside the text, and moves `position` behind it. See `tableLines`.
TableRecord takeLine(std::string_view text, std::size_t& position);

/// The lines of a text, none lost: their raw texts together are the text. A line ends at CR LF, CR or LF outside
/// quotes. A quote that never closes in front of a comma or a line end, or that would swallow a further record of
/// the table, is an ordinary character; so is every quote behind "//" at the start of a line.
std::vector<TableRecord> tableLines(std::string_view text);

} // namespace kitwright
