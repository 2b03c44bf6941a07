// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lang/language_folder.h"

#include <gtest/gtest.h>

namespace kitwright {

TEST(LanguageFolder, ListsTheFilesOfAnExtensionInAlphabeticalOrder)
{
    const std::vector<std::string> names = {"readme.txt", "polski.lng",  "english.LNG", "lng", "Cestina.lng",
                                            "lng.txt",    "cestina.lng", "ng",          ""};
    EXPECT_EQ(ListFilesByExtension(names, "lng", "lng"),
              (std::vector<std::string>{"Cestina.lng", "cestina.lng", "english.LNG", "lng", "polski.lng"}));
    EXPECT_EQ(ListFilesByExtension(names, "LNG", "pol"), std::vector<std::string>{"polski.lng"});
}

} // namespace kitwright
