// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/list_file.h"

#include <gtest/gtest.h>

namespace kitwright {

TEST(LeadingNumber, TakesTheLongestDecimalNumber)
{
    const std::pair<std::string, double> cases[] = {
        {"2", 2},   {" \t2 ; file", 2}, {"abc", 0}, {"", 0},    {"-", 0},         {".", 0},
        {"-5", -5}, {"+7,5", 7},        {".5", .5}, {"5.", 5},  {"33.3.3", 33.3}, {"1e3", 1},
        {"--1", 0}, {"inf", 0},         {"0x9", 0}, {"- 5", 0}, {"-.25x", -.25},  {"000012", 12}};
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(leadingNumber(text), expected) << '"' << text << '"';
    EXPECT_GT(leadingNumber(std::string(400, '9')), 1e300);
    EXPECT_LT(leadingNumber('-' + std::string(400, '9')), -1e300);
    EXPECT_EQ(leadingNumber("0." + std::string(400, '0') + '1'), 0);
    EXPECT_EQ(leadingNumber(std::string(400, '0') + "7.25"), 7.25);
}

TEST(ListEntries, SplitsEachLineAtItsFirstComma)
{
    const struct {
        std::string line, text;
        int kind;
        std::string help;
    } cases[] = {{"shotSpeed,1", "shotSpeed", 1, ""},
                 {"  shapeFile , 2", "shapeFile", 2, ""},
                 {" displayText ", "displayText", 0, ""},
                 {"a,b,c", "a", 0, "b,c"},
                 {"x,2.6", "x", 3, ""},
                 {"x,32767.4", "x", 32767, ""},
                 {"x,32768", "x", 0, ""},
                 {"x,-32769", "x", 0, ""},
                 {"model,2; browse, or type ", "model", 2, "browse, or type"},
                 {"range,0 - metres", "range", 0, "metres"},
                 {"side,0; -1 = none", "side", 0, "-1 = none"}};
    for (const auto& [line, text, kind, help] : cases) {
        const std::vector<ListEntry> entries = listEntries("first\r\n\r\n" + line);
        ASSERT_EQ(entries.size(), 3U) << line;
        EXPECT_EQ(entries[1].text, "");
        EXPECT_EQ(entries[2].text, text) << line;
        EXPECT_EQ(entries[2].kind, kind) << line;
        EXPECT_EQ(entries[2].help, help) << line;
    }
}

} // namespace kitwright
