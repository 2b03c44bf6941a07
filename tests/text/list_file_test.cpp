// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/list_file.h"

#include "support/scenario.h"

#include <gtest/gtest.h>

namespace kitwright {

TEST(LeadingNumber, TakesTheLongestDecimalNumber)
{
    for (const auto& [text, expected] : testing::scenarioTable<2>("tables/leading_number.txt"))
        EXPECT_EQ(leadingNumber(text), std::stod(expected)) << '"' << text << '"';
    EXPECT_GT(leadingNumber(std::string(400, '9')), 1e300);
    EXPECT_LT(leadingNumber('-' + std::string(400, '9')), -1e300);
    EXPECT_EQ(leadingNumber("0." + std::string(400, '0') + '1'), 0);
    EXPECT_EQ(leadingNumber(std::string(400, '0') + "7.25"), 7.25);
}

TEST(ListEntries, SplitsEachLineAtItsFirstComma)
{
    for (const auto& [line, text, kind, help] : testing::scenarioTable<4>("tables/list_entries.txt")) {
        const std::vector<ListEntry> entries = listEntries("first\r\n\r\n" + line);
        ASSERT_EQ(entries.size(), 3U) << line;
        EXPECT_EQ(entries[1].text, "");
        EXPECT_EQ(entries[2].text, text) << line;
        EXPECT_EQ(std::to_string(entries[2].kind), kind) << line;
        EXPECT_EQ(entries[2].help, help) << line;
    }
}

} // namespace kitwright
