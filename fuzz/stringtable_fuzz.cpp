// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/string_table.h"
#include "support/input.h"
#include "support/target.h"
#include "text/text_files.h"

#include <algorithm>

namespace kitwright::fuzzing {

namespace {

StringTable emptyTable()
{
    StringTable table;
    for (const char* language : {"English", "Czech"})
        table.addLanguage(language);
    return table;
}

StringTable tableOf(std::string_view text)
{
    StringTable table = emptyTable();
    table.takeIn(parseTable(text));
    return table;
}

void checkLines(std::string_view text)
{
    std::string raw;
    for (const TableRecord& record : tableLines(text))
        raw += rawText(record);
    require(raw == text, "the lines of a file are the file");
}

/// What was read, and not touched, is written as it was; also by a table that held other files before.
void checkUntouched(const std::string& text, const std::string& other)
{
    StringTable table = tableOf(text);
    require(table.text() == text, "an untouched file is written byte for byte");
    table.written();
    require(table.text() == text, "and once more");
    table.takeInAgain(parseTable(text), parseTable(text));
    require(table.text() == text, "and when it is read again");
    table.takeInAgain(parseTable(other), parseTable(text));
    table.release();
    require(table.StringCount() == 0 && table.languages() == emptyTable().languages(), "release leaves nothing");
    table.takeIn(parseTable(text));
    require(table.text() == text, "an earlier file leaves no trace");
}

/// Takes the row out of the list that says in the program's own languages what `entry` does.
bool takeRow(std::vector<StringEntry>& rows, const StringEntry& entry)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const StringEntry& row) {
        return row.Key == entry.Key && row.Texts[0] == entry.Texts[0] && row.Texts[1] == entry.Texts[1];
    });
    if (found == rows.end())
        return false;
    rows.erase(found);
    return true;
}

/// When the author touched nothing, all that another program wrote into the file stays in it.
void checkForeignChange(const std::string& text, const std::string& other)
{
    StringTable table = tableOf(text);
    table.takeInAgain(parseTable(other), parseTable(text));
    const StringTable written = tableOf(table.text());
    std::vector<StringEntry> rows;
    for (std::size_t index = 0; index < written.StringCount(); ++index)
        rows.push_back(written.entry(index));
    const StringTable foreign = tableOf(other);
    for (std::size_t index = 0; index < foreign.StringCount(); ++index)
        require(takeRow(rows, foreign.entry(index)), "a record that another program wrote is not lost");
}

bool sameBut(const StringTable& left, const StringTable& right, std::size_t row, std::size_t language)
{
    if (left.StringCount() != right.StringCount() || left.languages() != right.languages())
        return false;
    for (std::size_t index = 0; index < left.StringCount(); ++index) {
        StringEntry entry = right.entry(index);
        if (index == row)
            entry.Texts[language] = left.entry(index).Texts[language];
        if (left.entry(index) != entry)
            return false;
    }
    return true;
}

/// An author's text is read back, and nothing else is changed by it.
void checkEdit(const std::string& text, const std::string& typed)
{
    StringTable table = tableOf(text);
    const std::string wanted = withCrLf(typed);
    // A line that starts like a record is one, quotes or not.
    if (table.StringCount() == 0 || typed.find(keyPrefix) != typed.npos)
        return;
    const std::size_t row = typed.size() % table.StringCount();
    const std::size_t language = typed.size() % 2;
    const StringTable before = table;
    table.setText(row, language, wanted);
    const StringTable again = tableOf(table.text());
    require(again.StringCount() == before.StringCount(), "a text makes no key and takes none");
    require(again.entry(row).Texts[language] == wanted, "a text is read back as it was typed");
    require(sameBut(before, again, row, language), "a text changes no other");
    table.written();
    table.setText(row, language, before.entry(row).Texts[language]);
    require(sameBut(before, tableOf(table.text()), before.StringCount(), 0), "a text can be taken back");
}

/// A field that takes another text leaves the fields around it, and the lines behind its own, as they stand.
void checkFields(const std::string& text, const std::string& typed)
{
    // A line that starts like a record is one, quotes or not.
    if (typed.find(keyPrefix) != typed.npos)
        return;
    const std::string wanted = withCrLf(typed);
    for (const TableRecord& line : tableLines(text)) {
        for (std::size_t field = 1; isTableRecord(line) && field < line.fields.size(); ++field) {
            TableRecord changed = line;
            settleOpenQuotes(changed);
            changed.lineEnd = "\r\n";
            changed.fields[field] = withFieldText(changed.fields[field], wanted);
            const std::vector<TableRecord> again = tableLines(rawText(changed) + "$STRM_BEHIND,\"x\"\r\n");
            require(again.size() == 2 && again[0] == changed, "a field's text changes no other field");
            require(withCrLf(fieldText(again[0].fields[field])) == wanted, "a field says what it was told");
        }
    }
}

/// Whatever meets in a table, keys that the author added there are not lost.
void checkAdded(const std::string& text, const std::string& typed)
{
    StringTable table = emptyTable();
    table.add();
    table.setKey(0, "ADDED");
    table.setText(0, 0, "added");
    table.takeIn(parseTable(text));
    require(table.entry(0).Key == "ADDED" && table.entry(0).Texts[0] == "added", "an added key keeps its texts");
    table.takeInAgain(parseTable(typed), parseTable(text));
    require(table.entry(0).Key == "ADDED" && table.entry(0).Texts[0] == "added", "whoever changes the file");
    table.removeAll();
    table.release();
    require(table.StringCount() == 0, "release leaves nothing");
}

} // namespace

/// The first piece is a stringtable, the second a text for one of its keys and what another program makes of the file.
void tryInput(std::string_view bytes)
{
    Pieces pieces(bytes);
    const std::string text = pieces.text();
    const std::string other = pieces.text();
    checkLines(text);
    checkUntouched(text, other);
    checkForeignChange(text, other);
    checkEdit(text, other);
    checkFields(text, other);
    checkAdded(text, other);
}

} // namespace kitwright::fuzzing
