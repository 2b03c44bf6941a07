// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/text_files.h"

#include "support/memory_file_system.h"
#include "support/scenario.h"
#include "text/list_file.h"
#include "text/windows_1250.h"

#include <gtest/gtest.h>

namespace kitwright {

TEST(DataLines, EndAtCrOrCrLfButNotAtBareLf)
{
    const std::pair<std::string, std::vector<std::string_view>> cases[] = {
        {"", {}},       {"a\r\nb\r\n", {"a", "b"}},   {"a\rb", {"a", "b"}},       {"a\r", {"a"}},
        {"\n", {"\n"}}, {"a\nb\r\nc", {"a\nb", "c"}}, {"\r\r\n\r", {"", "", ""}}, {"a", {"a"}},
        {"\r\n", {""}}, {"a\r\n\nb", {"a", "\nb"}}};
    for (const auto& [text, lines] : cases)
        EXPECT_EQ(dataLines(text), lines) << ::testing::PrintToString(text);
}

TEST(DataLines, AreTakenUpToAMostWhichIsTold)
{
    EXPECT_EQ(dataLines("a\r\nb\rc", 2), (std::vector<std::string_view>{"a", "b"}));
    for (const char* whole : {"", "a\r\nb", "a\rb\r", "a\r\nb\r\n"})
        EXPECT_FALSE(linesLeftOut("/f", whole, 2)) << ::testing::PrintToString(whole);
    for (const char* cut : {"a\r\nb\r\nc", "\r\r\r"})
        EXPECT_TRUE(linesLeftOut("/f", cut, 2)) << ::testing::PrintToString(cut);
    const std::string longest(longestDataLine, 'x');
    EXPECT_EQ(dataLines(longest + "\rb\r" + longest.substr(1) + "\u010D"),
              (std::vector<std::string_view>{longest, "b", std::string_view(longest).substr(1)}));
}

TEST(Lines, AreMeasuredWithoutTheirEnds)
{
    EXPECT_FALSE(hasLineLongerThan(3, "123\n123\r\n\n\r123"));
    EXPECT_TRUE(hasLineLongerThan(3, "1\n2\n1234\n3"));
    EXPECT_TRUE(hasLineLongerThan(3, "1\n1234"));
}

TEST(WithCrLf, MendsEveryLineEndAndNothingElse)
{
    for (const auto& [text, expected] : testing::scenarioTable<2>("tables/line_ends.txt"))
        EXPECT_EQ(withCrLf(text), expected) << ::testing::PrintToString(text);
}

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

TEST(TextFiles, HoldOneByteACharacterUnlessTheyAreMarked)
{
    testing::MemoryFileSystem disk;
    TextFiles texts(disk, windows1250());
    EXPECT_FALSE(texts.write("/f", "Příliš\r\n\u00A0😀"));
    EXPECT_EQ(disk.files["/f"], "P\xF8\xEDli\x9A\r\n\xA0");
    EXPECT_EQ(*texts.read("/f"), "Příliš\r\n\u00A0");
    EXPECT_EQ(*texts.readMarked("/f"), "Příliš\r\n\u00A0");
    disk.files["/f"] = "\xEF\xBB\xBFžluť 😀";
    EXPECT_EQ(*texts.readMarked("/f"), "žluť ");
    EXPECT_EQ(windows1250().encode(*texts.read("/f")), disk.files["/f"]);
    EXPECT_FALSE(texts.readMarked("/missing"));
}

TEST(TextFiles, RefuseUtf16Documents)
{
    using namespace std::string_literals;
    testing::MemoryFileSystem disk;
    const TextFiles texts(disk, windows1250());
    for (const std::string& refused : {"\xFF\xFE"s, "\xFE\xFF\0c"s, "c\0l\0a\0\x10\x01s\0"s, "\0c\0l"s}) {
        disk.files["/f"] = refused;
        EXPECT_FALSE(texts.readDocument("/f")) << ::testing::PrintToString(refused);
    }
    for (const std::string& taken : {""s, "\0"s, "\0\0\0\0"s, "class A {};\0\0"s}) {
        disk.files["/f"] = taken;
        EXPECT_EQ(*texts.readDocument("/f"), taken) << ::testing::PrintToString(taken);
    }
}

} // namespace kitwright
