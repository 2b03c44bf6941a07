// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "stringtable/table_record.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kitwright {

/// For each language of the table, in list order, the field of a record that holds its text; 0 (the key's field)
/// where the file has none.
using TableColumns = std::vector<std::size_t>;

/// The names in a header, one per column; the field of column c is c + 1.
std::vector<std::string> headerLanguages(const TableRecord& header);

/// The columns of a header for a list of languages, letter case and the blanks around names ignored. A name that
/// stands twice in the one goes with the one that stands twice in the other. Without a header: the list's order.
TableColumns columnsFor(const std::optional<TableRecord>& header, const std::vector<std::string>& languages);

/// The header of a file that has none of its own.
TableRecord plainHeader(const std::vector<std::string>& languages);

/// The record's fields up to its last filled one.
std::size_t filledFields(const TableRecord& record);

/// A header with the columns of the table's languages under it.
struct TableHeading {
    TableRecord header;
    TableColumns columns;
    std::size_t width = 0; ///< How many fields the records under it have at most.

    /// Gives a language a column behind everything that the header and the records hold.
    void addColumn(std::size_t language, const std::string& name);
};

/// The record under another heading: each field goes, byte for byte, to its language's new column, and those of no
/// language go behind the last one. A language that has no column there is left out.
TableRecord movedRecord(const TableRecord& record, const TableColumns& from, const TableHeading& to);

} // namespace kitwright
