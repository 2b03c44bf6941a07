// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/proportional_layout.h"

#include <gtest/gtest.h>

namespace kitwright {

TEST(ProportionalLayout, KeepsTheSharesThroughEverySoundSize)
{
    ProportionalLayout layout(1000, 640, {{8, 6, 34, 34}});
    const auto expectAt = [&](double width, double height, const Geometry& expected) {
        const Geometry place = layout.at(width, height)[0];
        EXPECT_DOUBLE_EQ(place.left, expected.left);
        EXPECT_DOUBLE_EQ(place.top, expected.top);
        EXPECT_DOUBLE_EQ(place.width, expected.width);
        EXPECT_DOUBLE_EQ(place.height, expected.height);
    };
    for (int width = 1; width < 2000; width += 7)
        layout.at(width, 2000 - width);
    expectAt(1000, 640, {8, 6, 34, 34});
    expectAt(500, 1280, {4, 12, 17, 68});
    for (const auto& [width, height] : {std::pair(0, 640), {1000, 0}, {-5, 100}})
        expectAt(width, height, {4, 12, 17, 68});
}

} // namespace kitwright
