// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/targets.h"
#include "stringtable/string_table.h"
#include "text/text_files.h"
#include "text/windows_1250.h"

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

/// Key and texts of each row, the texts up to so many languages.
std::vector<std::vector<std::string>> rows(const StringTable& table, std::size_t languages)
{
    std::vector<std::vector<std::string>> result;
    for (std::size_t index = 0; index < table.StringCount(); ++index) {
        result.push_back(table.entry(index).Texts);
        result.back().resize(languages);
        result.back().push_back(table.entry(index).Key);
    }
    return result;
}

/// What was read, and not touched, is written as it was; also by a table that held other files before.
void checkUntouched(const std::string& text, const std::string& other)
{
    std::string raw;
    for (const TableRecord& record : tableLines(text))
        raw += rawText(record);
    require(raw == text, "the lines of a file are the file");
    StringTable table = tableOf(text);
    require(table.text() == text, "an untouched file is written byte for byte");
    table.written();
    table.takeInAgain(parseTable(text), parseTable(text));
    require(table.text() == text, "and when it is read again");
    table.takeInAgain(parseTable(other), parseTable(text));
    table.release();
    require(table.StringCount() == 0 && table.languages() == emptyTable().languages(), "release leaves nothing");
    table.takeIn(parseTable(text));
    require(table.text() == text, "an earlier file leaves no trace");
}

/// When the author touched nothing, all that another program wrote into the file stays in it.
void checkForeignChange(const std::string& text, const std::string& other)
{
    StringTable table = tableOf(text);
    table.takeInAgain(parseTable(other), parseTable(text));
    auto written = rows(tableOf(table.text()), 2);
    auto foreign = rows(tableOf(other), 2);
    std::sort(written.begin(), written.end());
    std::sort(foreign.begin(), foreign.end());
    require(std::includes(written.begin(), written.end(), foreign.begin(), foreign.end()),
            "a record that another program wrote is not lost");
}

/// An author's text is read back, and nothing else is changed by it.
void checkEdit(const std::string& text, const std::string& typed)
{
    StringTable table = tableOf(text);
    if (table.StringCount() == 0)
        return;
    const std::size_t row = typed.size() % table.StringCount();
    const std::size_t language = typed.size() % 2;
    const std::size_t all = table.languages().size();
    const auto before = rows(table, all);
    auto expected = before;
    expected[row][language] = withCrLf(typed);
    table.setText(row, language, expected[row][language]);
    require(rows(tableOf(table.text()), all) == expected, "a text is read back, and changes no other");
    table.written();
    table.setText(row, language, before[row][language]);
    require(rows(tableOf(table.text()), all) == before, "a text can be taken back");
}

/// Whatever meets in a table, a key that the author added there is not lost.
void checkAdded(const std::string& text, const std::string& other)
{
    StringTable table = emptyTable();
    table.add();
    table.setKey(0, "ADDED");
    table.setText(0, 0, "added");
    table.takeIn(parseTable(text));
    table.takeInAgain(parseTable(other), parseTable(text));
    require(table.entry(0).Key == "ADDED" && table.entry(0).Texts[0] == "added", "an added key keeps its texts");
}

} // namespace

/// The input is a stringtable, and behind "|" a text for one of its keys and what another program makes of the file.
void tryStringtable(std::string_view bytes)
{
    const std::size_t end = std::min(bytes.find('|'), bytes.size());
    const std::string text = windows1250().decode(bytes.substr(0, end));
    const std::string other = windows1250().decode(bytes.substr(std::min(end + 1, bytes.size())));
    checkUntouched(text, other);
    checkForeignChange(text, other);
    checkAdded(text, other);
    // A line that starts like a record is one, quotes or not.
    if (other.find(keyPrefix) == other.npos)
        checkEdit(text, other);
}

} // namespace kitwright::fuzzing
