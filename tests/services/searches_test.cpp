// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/searches.h"

#include "services/letter_case.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace kitwright {
namespace {

using Texts = std::vector<std::string>;

struct Words final : TextList {
    Words(Texts entries) : words(std::move(entries))
    {
        std::sort(words.begin(), words.end(),
                  [](auto& left, auto& right) { return upperCased(left) < upperCased(right); });
    }
    int count() const override { return static_cast<int>(words.size()); }
    std::string_view textAt(int index) const override
    {
        return index < 0 || index >= count() ? std::string_view() : words[static_cast<std::size_t>(index)];
    }
    int prefix(std::string_view key) const { return FindPrefix(0, count() - 1, key, *this); }

    Texts words;
};

TEST(Searches, RoundTheMiddleToTheEvenNeighbour)
{
    // Every entry is empty, so that the first one looked at is the one found.
    const int cases[][3] = {
        {0, 1, 0}, {0, 3, 2}, {0, 5, 2}, {3, 4, 4}, {0, -1, 0}, {0, 4, 2}, {32767, 32768, 32768}};
    for (const auto& [lower, upper, middle] : cases)
        EXPECT_EQ(FindExact(lower, upper, "", Words({})), middle) << lower << ' ' << upper;
    EXPECT_EQ(FindExact(0, 1, "zebra", Words({"class"})), -1);
}

TEST(Searches, FindTheFirstEntryWithABeginning)
{
    const std::tuple<Texts, std::string, int> cases[] = {
        {{"class", "classes", "clear"}, "cl", 0}, {{"_x", "A_x", "a1", "az"}, "a_", 2}, {{"  classes"}, "cla", -1},
        {{"class", "classes"}, "CLASSE", 1},      {{"Žába", "zebra", "žal"}, "ž", 1},   {{}, "cl", -1}};
    for (const auto& [words, key, found] : cases)
        EXPECT_EQ(Words(words).prefix(key), found) << key;
}

TEST(Searches, AgreeWithALinearSearch)
{
    std::mt19937 random(20240);
    const auto word = [&] {
        std::string text;
        for (auto length = 1 + random() % 3; length > 0; --length)
            text += Texts{"a", "B", "b", "_", "1", "ž", "Ž", "č"}[random() % 8];
        return text;
    };
    for (int round = 0; round < 300; ++round) {
        Texts words(round == 0 ? 40'000 : random() % 40);
        std::generate(words.begin(), words.end(), word);
        const Words list(words);
        const std::string key = word();
        const int exact = FindExact(0, list.count() - 1, key, list);
        const auto equal = [&](const std::string& text) { return equalIgnoringCase(text, key); };
        const auto begins = [&](const std::string& text) { return upperCased(text).starts_with(upperCased(key)); };
        ASSERT_EQ(exact >= 0, std::any_of(words.begin(), words.end(), equal)) << key;
        ASSERT_TRUE(exact < 0 || equal(list.words[static_cast<std::size_t>(exact)])) << key;
        const auto first = std::find_if(list.words.begin(), list.words.end(), begins);
        ASSERT_EQ(list.prefix(key), first == list.words.end() ? -1 : first - list.words.begin()) << key;
    }
}

} // namespace
} // namespace kitwright
