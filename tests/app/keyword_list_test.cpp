// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/keyword_list.h"

#include <gtest/gtest.h>

#include <random>

namespace kitwright {

namespace {

/// The list as one text: each keyword with the number of its class.
std::string shown(const KeywordList& list)
{
    std::string result;
    for (int i = 0; i < list.count(); ++i)
        result += std::string(list.textAt(i)) + ':' + std::to_string(static_cast<int>(list.classAt(i))) + ' ';
    return result;
}

/// The search that `find` has to agree with.
int findExact(const KeywordList& list, std::string_view word)
{
    return FindExact(0, list.count() - 1, word, list);
}

} // namespace

TEST(KeywordList, KeepsTheOrderOfTheUpperCasedTexts)
{
    KeywordList list;
    for (const std::string_view word : {"zero", "Žena", "žaba", "a_b", "AC", "ab", "#define", "Zebra"})
        list.add(word, KeywordClass::ClassName);
    EXPECT_EQ(shown(list), "#define:3 ab:3 AC:3 a_b:3 Zebra:3 zero:3 žaba:3 Žena:3 ");
}

TEST(KeywordList, TakesTheLinesOfAFileThatItDoesNotHave)
{
    KeywordList list;
    list.addLines("* Heading *\r\n   Man  \r\n      Soldier\r\n\tTank\r\nman\r\n", KeywordClass::ClassName);
    list.addLines("SOLDIER\r\n\r\n   scope = 2;\r\n   \r\ncost *\r\nClass\r\n", KeywordClass::ConfigCommand);
    EXPECT_EQ(shown(list), ":1 \tTank:3 Class:1 Man:3 scope = 2;:1 Soldier:3 ");
    list.add("class", KeywordClass::CLanguageWord);
    EXPECT_EQ(shown(list), ":1 \tTank:3 Class:1 class:2 Man:3 scope = 2;:1 Soldier:3 ");
    EXPECT_EQ(list.find("CLASS"), findExact(list, "CLASS"));
}

TEST(KeywordList, FindsWhatTheBinarySearchFinds)
{
    const std::string letters[] = {"a", "A", "b", "_", "ž", "Ž", "č", "Č", "1"};
    std::mt19937 random(11);
    const auto anyWord = [&](std::size_t longest) {
        std::string word;
        for (auto length = random() % (longest + 1); length > 0; --length)
            word += letters[random() % std::size(letters)];
        return word;
    };
    for (int round = 0; round < 300; ++round) {
        const bool isLong = round == 0;
        std::string lines;
        for (auto count = isLong ? 40'000 : 1 + random() % 40; count > 0; --count)
            lines += anyWord(isLong ? 7 : 3) + "\r\n";
        KeywordList list;
        list.addLines(lines, KeywordClass::ClassName);
        list.add(anyWord(3), KeywordClass::CLanguageWord);
        for (int i = 0; i < list.count(); ++i)
            ASSERT_EQ(list.find(list.textAt(i)), findExact(list, list.textAt(i))) << list.textAt(i);
        for (int i = 0; i < 40; ++i) {
            const std::string word = anyWord(3);
            ASSERT_EQ(list.find(word), findExact(list, word)) << shown(list) << "/ " << word;
        }
    }
}

} // namespace kitwright
