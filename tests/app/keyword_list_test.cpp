// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/keyword_list.h"

#include "services/letter_case.h"

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
    EXPECT_EQ(list.textAt(-1), "");
    EXPECT_EQ(list.textAt(8), "");
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
    const auto anyWord = [&] {
        std::string word;
        for (auto length = random() % 4; length > 0; --length)
            word += letters[random() % std::size(letters)];
        return word;
    };
    for (int round = 0; round < 300; ++round) {
        KeywordList list;
        for (auto count = 1 + random() % 40; count > 0; --count)
            list.add(anyWord(), static_cast<KeywordClass>(1 + random() % 3));
        for (int i = 0; i < list.count(); ++i)
            ASSERT_EQ(list.find(list.textAt(i)), findExact(list, list.textAt(i))) << shown(list);
        for (int i = 0; i < 40; ++i) {
            const std::string word = anyWord();
            ASSERT_EQ(list.find(word), findExact(list, word)) << shown(list) << "/ " << word;
        }
    }
}

TEST(KeywordList, FindsEveryWordOfALongList)
{
    constexpr int count = 40'000;
    std::string lines;
    for (int i = 0; i < count; ++i)
        lines += "Word" + std::to_string(i) + "\r\n";
    KeywordList list;
    list.addLines(lines, KeywordClass::ClassName);
    list.add("word777", KeywordClass::CLanguageWord);
    ASSERT_EQ(list.count(), count + 1);
    for (int i = 0; i < count; i += 7) {
        const std::string word = "wORD" + std::to_string(i);
        ASSERT_EQ(list.find(word), findExact(list, word));
        ASSERT_TRUE(equalIgnoringCase(list.textAt(list.find(word)), word));
        ASSERT_EQ(list.find(word + '_'), -1);
    }
}

} // namespace kitwright
