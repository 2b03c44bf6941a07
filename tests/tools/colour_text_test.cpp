// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/colour_text.h"

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
    const std::pair<double, std::string> cases[] = {{12.5 / 100, "0.125"},
                                                    {100 / 100.0, "1.0"},
                                                    {0.1 + 0.2, "0.3"},
                                                    {0.99999999999999994, "1.0"},
                                                    {-0.0, "0.0"},
                                                    {0.001 / 100, "0.00001"},
                                                    {2.0 / 3, "0.666666666666667"},
                                                    {1e-15, "0.000000000000001"},
                                                    {1e-16, "0.0"},
                                                    {1e-320, "0.0"},
                                                    {1234.5, "1234.5"},
                                                    {1e20, "100000000000000000000.0"}};
    for (const auto& [number, expected] : cases)
        EXPECT_EQ(numberText(number), expected) << number;
}

} // namespace kitwright
