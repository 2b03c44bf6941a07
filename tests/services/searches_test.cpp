// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/searches.h"

#include "text/letter_case.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kitwright {
namespace {

using Texts = std::vector<std::string>;

struct Words final : TextList {
    Words(Texts entries) : words(std::move(entries))
    {
        std::ranges::sort(words, {}, [](auto& word) { return upperCased(word); });
    }
    int count() const override { return static_cast<int>(words.size()); }
    std::string_view textAt(int index) const override
    {
        return index < 0 || index >= count() ? std::string_view() : words[static_cast<std::size_t>(index)];
    }

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
        EXPECT_EQ(FindPrefix(0, static_cast<int>(words.size()) - 1, key, Words(words)), found) << key;
}

} // namespace
} // namespace kitwright
