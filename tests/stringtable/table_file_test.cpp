// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/string_table.h"
#include "support/scenario.h"

#include <gtest/gtest.h>

#include <algorithm>
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

/// What each line of a text says: its fields' texts, a ";" behind each, and a "/" behind the line.
std::string linesOf(const std::string& text)
{
    std::string lines;
    for (const TableRecord& record : tableLines(text)) {
        for (const std::string& field : record.fields)
            lines += fieldText(field) + ';';
        lines += '/';
    }
    return lines;
}

TEST(TableFile, SplitsLinesAndFieldsAsAuthorsWriteThem)
{
    for (const auto& [text, lines] : testing::scenarioTable<2>("tables/table_lines.txt"))
        EXPECT_EQ(linesOf(text), lines) << text;
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
    const std::vector<TableRecord> before = tableLines(file);
    const std::string typed = "Fusil, \"grand\"";
    for (std::size_t index = 0; index < 201; index += 9) {
        StringTable table = tableOf(file);
        table.setText(index, 2, typed);
        const std::vector<TableRecord> lines = tableLines(table.text());
        ASSERT_EQ(lines.size(), before.size());
        const auto [old, changed] = std::mismatch(before.begin(), before.end(), lines.begin());
        ASSERT_NE(old, before.end());
        EXPECT_TRUE(std::equal(old + 1, before.end(), changed + 1));
        EXPECT_EQ(tableOf(table.text()).entry(index).Texts[2], typed);
    }
}

} // namespace
} // namespace kitwright
