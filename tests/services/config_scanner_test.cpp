// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/config_scanner.h"

#include "support/scenario.h"

#include <gtest/gtest.h>

namespace kitwright {

TEST(PatchClassName, IsTheFirstClassInsideTheBlock)
{
    for (const auto& [text, found] : testing::scenarioTable<2>("tables/patch_class.txt")) {
        std::string patchClass = "before";
        ReadPatchClassName(text, patchClass);
        EXPECT_EQ(patchClass, found) << text;
    }
}

} // namespace kitwright
