// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/table_record.h"

#include "support/scenario.h"

#include <gtest/gtest.h>

namespace kitwright {
namespace {

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

} // namespace
} // namespace kitwright
