// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/colour_text.h"

#include "support/scenario.h"

#include <gtest/gtest.h>

namespace kitwright {

TEST(ColourText, ScalesEachComponentByFourThousandths)
{
    const std::pair<std::uint32_t, std::string> cases[] = {
        {0, "0.0"},     {1, "0.004"},   {25, "0.1"},  {100, "0.4"},   {125, "0.5"},
        {128, "0.512"}, {249, "0.996"}, {250, "1.0"}, {251, "1.004"}, {255, "1.02"}};
    for (const auto& [component, expected] : cases) {
        EXPECT_EQ(colourArrayText(component, 0), '{' + expected + ",0.0,0.0,0.0}");
        EXPECT_EQ(colourArrayText(component << 8, 7), "{0.0," + expected + ",0.0,0.07}");
        EXPECT_EQ(colourArrayText(component << 16, 33.3), "{0.0,0.0," + expected + ",0.333}");
    }
}

TEST(ColourText, WritesNumbersPlainlyWithAtMostFifteenDigits)
{
    for (const auto& [number, expected] : testing::scenarioTable<2>("tables/numbers.txt"))
        EXPECT_EQ(numberText(std::strtod(number.c_str(), nullptr)), expected) << number;
}

} // namespace kitwright
