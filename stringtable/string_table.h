// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "stringtable/string_entry.h"
#include "stringtable/table_columns.h"
#include "stringtable/table_file.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// The add-on's table of texts: keys in list order, each with a text per language and a tick that says whether it
/// is written. What was read from a file is kept as it stood there, so that `text` gives back byte for byte
/// whatever the author did not touch. Keys are compared exactly: two that differ in letter case are two keys.
/// Positions count from 0 and must lie inside the lists.
class StringTable {
public:
    /// Appends a language of the program's own list.
    void addLanguage(std::string name);

    /// The program's own languages, then the further ones of the files taken in.
    const std::vector<std::string>& languages() const { return m_languages; }

    /// The number of keys.
    std::size_t StringCount() const { return StringEntries.size(); }

    const StringEntry& entry(std::size_t index) const { return StringEntries[index]; }
    bool isTicked(std::size_t index) const { return StringEntries[index].ticked; }

    /// What a key is listed as as long as it lives: how many keys there were when it came, itself included.
    std::size_t number(std::size_t index) const { return StringEntries[index].number; }

    /// Appends a ticked key without a name, its texts empty.
    void add();

    /// Removes a key, not the lines around its record in the file.
    void remove(std::size_t index);
    void removeAll();

    void setKey(std::size_t index, std::string_view key);
    void setText(std::size_t index, std::size_t language, std::string_view text);
    void setTicked(std::size_t index, bool ticked);

    /// False for a file with which the table would hold more texts than is bearable; it must not be taken in.
    bool hasRoomFor(const TableFile& file) const;

    /// Takes in a file that the table does not know, behind the table's own keys; its header and its column order
    /// are the table's from then on. Where a ticked key stands in both, the table's texts win, and the file's stay
    /// where the table has none.
    void takeIn(const TableFile& file);

    /// Takes in the table's own file after someone else changed it; `former` is what it held before. What the
    /// author did not touch becomes what the file says now, what the author removed stays removed.
    void takeInAgain(const TableFile& file, const TableFile& former);

    /// Takes everything that belongs to a file out of the table; keys that stand in no file stay.
    void release();

    /// The content of the file: what was read, with the author's changes, or the plain format when nothing was.
    std::string text() const;

    /// Notes that the file now holds `text`.
    void written();

private:
    /// A key with its place in the file.
    struct Row : StringEntry {
        std::size_t number = 0;
        bool ticked = true;
        bool inFile = false;               ///< The file of the open document holds it, as last read or written.
        std::optional<TableRecord> record; ///< As it stands in the file; none for a key that was added here.
        std::string before;                ///< Lines of the file in front of the record that are none.
    };

    /// How a file that is taken in meets the rows of the table.
    class Intake;

    /// The header as it is written: the file's, with columns for languages that it lacks but that a ticked key has a
    /// text in.
    TableHeading heading() const;
    TableRecord recordOf(const Row& row, const TableHeading& heading) const;
    std::vector<std::string> textsOf(const TableRecord& record) const;

    /// The lines behind the header, apart by what they come from: those around the records, and each record.
    std::vector<std::string> piecesBehindHeader(const TableHeading& heading) const;

    /// The pieces one behind the other, each in lines of its own.
    std::string joined(const std::vector<std::string>& pieces) const;

    void append(Row row);
    void takeInParts(const TableFile& file, const TableFile* former);
    void addFileLanguages(const TableFile& file);

    /// Brings the rows and the lines around them under the header of a file, whose layout becomes the table's.
    void moveRowsTo(const TableFile& file);

    /// What the author made of the keys: entry i is the key at position i of the list.
    std::vector<Row> StringEntries;

    std::vector<std::string> m_languages;
    std::size_t m_ownLanguages = 0; ///< How many of them are the program's own.
    TableLayout m_layout;
    TableColumns m_columns; ///< Of the file, one for each language.
    std::string m_tail;     ///< Lines of the file behind the last record.
};

} // namespace kitwright
