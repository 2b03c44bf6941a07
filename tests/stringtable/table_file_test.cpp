// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/string_table.h"
#include "support/scenario.h"

#include <gtest/gtest.h>

#include <regex>

namespace kitwright {
namespace {

StringTable tableOf(const std::string& text)
{
    StringTable table;
    table.addLanguage("English");
    table.addLanguage("Czech");
    table.takeIn(parseTable(text));
    return table;
}

/// The table has every way of writing a record that one meets, in eight languages.
TEST(HandWrittenTable, IsGivenBackUnchanged)
{
    const std::string file = testing::scenarioText("stringtable/hand_written.csv");
    for (const char* lineEnd : {"\r\n", "\n", "\r"}) {
        const std::string text = std::regex_replace(file, std::regex("\r\n"), lineEnd);
        EXPECT_EQ(tableOf(text).StringCount(), 201u);
        EXPECT_EQ(tableOf(text).text(), text);
    }
}

TEST(HandWrittenTable, ChangesOneRecordWhereOneTextChanged)
{
    const std::string file = testing::scenarioText("stringtable/hand_written.csv");
    for (std::size_t index = 0; index < 201; index += 9) {
        StringTable table = tableOf(file);
        table.setText(index, 2, "Fusil, \"grand\"");
        std::vector<TableRecord> expected = tableLines(file);
        for (TableRecord& line : expected) {
            if (!isTableRecord(line) || recordKey(line) != table.entry(index).Key)
                continue;
            line.fields.resize(std::max<std::size_t>(line.fields.size(), 3));
            line.fields[2] = withFieldText(line.fields[2], "Fusil, \"grand\"");
        }
        EXPECT_EQ(tableLines(table.text()), expected);
    }
}

} // namespace
} // namespace kitwright
