// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/string_table.h"

#include <gtest/gtest.h>

namespace kitwright {
namespace {

/// Calls `check` with every text of up to `length` pieces.
template <class Check>
void forEachText(const std::vector<std::string>& pieces, int length, const Check& check,
                 const std::string& start = {})
{
    check(start);
    if (length == 0)
        return;
    for (const std::string& piece : pieces)
        forEachText(pieces, length - 1, check, start + piece);
}

TEST(TableFile, LosesNoByteOfAnyText)
{
    const std::vector<std::string> pieces{"LANGUAGE", "$STRM_K", ",", "\"", "\r\n", "\n", "\r", " ", "a", "//"};
    forEachText(pieces, 4, [](const std::string& text) {
        StringTable table;
        table.addLanguage("a");
        table.takeIn(parseTable(text));
        ASSERT_EQ(table.text(), text);
        table.written();
        ASSERT_EQ(table.text(), text);
    });
}

TEST(TableFile, ChangingAFieldLeavesTheOthersAlone)
{
    const std::vector<std::string> pieces{"\"", ",", "\r\n", " ", "a"};
    for (const std::string field : {"", "a", "\"a\"", " \"a,b\" ", "a \"b\"", "\"two\nlines\""}) {
        forEachText(pieces, 4, [&](const std::string& text) {
            TableRecord record = tableLines("$STRM_K," + field + ",\"x\",y\"\r\n").at(0);
            ASSERT_EQ(record.fields.size(), 4u);
            record.fields[1] = withFieldText(record.fields[1], text);
            const std::vector<TableRecord> again = tableLines(rawText(record) + "$STRM_L,z\r\n");
            ASSERT_EQ(again.size(), 2u) << field << '|' << text;
            ASSERT_EQ(again[0], record) << field << '|' << text;
            if (field.find('\n') == std::string::npos) {
                ASSERT_EQ(fieldText(again[0].fields[1]), text);
            }
        });
    }
}

struct RecordCase {
    const char* text;
    std::vector<std::vector<std::string>> lines; ///< The fields' texts, by line.
};

TEST(TableFile, SplitsLinesAndFieldsAsAuthorsWriteThem)
{
    const RecordCase cases[] = {
        {"a,b\r\nc\rd\n\ne", {{"a", "b"}, {"c"}, {"d"}, {""}, {"e"}}},
        {"a,\"b, c\",\"say \"\"hi\"\"\"\r\n", {{"a", "b, c", "say \"hi\""}}},
        {"a, \"b,c\" ,d", {{"a", "b,c", "d"}}},
        {"a,\"\",,", {{"a", "", "", ""}}},
        {"a,\"two\nlines\",b\nc", {{"a", "two\nlines", "b"}, {"c"}}},
        {"a,5\" gun,\"b\" c\r\nd", {{"a", "5\" gun", "\"b\" c"}, {"d"}}},
        {"$STRM_A,\"open\r\n$STRM_B,b\"\r\n", {{"$STRM_A", "\"open"}, {"$STRM_B", "b\""}}},
        {"// it's, \"quoted\r\na,\"b\"", {{"// it's, \"quoted"}, {"a", "b"}}},
    };
    for (const RecordCase& c : cases) {
        std::vector<std::vector<std::string>> lines;
        for (const TableRecord& record : tableLines(c.text)) {
            lines.emplace_back();
            for (const std::string& field : record.fields)
                lines.back().push_back(fieldText(field));
        }
        EXPECT_EQ(lines, c.lines) << c.text;
    }
}

} // namespace
} // namespace kitwright
