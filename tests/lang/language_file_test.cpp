// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lang/language_file.h"

#include "lang/language_folder.h"

#include <gtest/gtest.h>

namespace kitwright {

TEST(LanguageFile, FillsTextsAsFarAsItReaches)
{
    const struct {
        std::string file, first, second, third;
    } cases[] = {{"a\r\n b \r\nc", "a", " b ", "c"},
                 {"a\r\r\n", "a", "", "old"},
                 {"a\nb\nc\n", "a\nb\nc\n", "old", "old"},
                 {"", "old", "old", "old"}};
    for (const auto& [file, first, second, third] : cases) {
        UiTexts texts;
        texts.fill("old");
        readTexts(file, texts);
        EXPECT_EQ(texts[0], first);
        EXPECT_EQ(texts[1], second);
        EXPECT_EQ(texts[2], third);
    }
    UiTexts texts;
    std::string longFile;
    for (std::size_t line = 0; line <= texts.size(); ++line)
        longFile += std::to_string(line) + "\r\n";
    readTexts(longFile, texts);
    EXPECT_EQ(texts.back(), std::to_string(texts.size() - 1));
}

TEST(LanguageFolder, ListsTheFilesOfAnExtensionInAlphabeticalOrder)
{
    const std::vector<std::string> names = {"readme.txt", "polski.lng",  "english.LNG", "lng", "Cestina.lng",
                                            "lng.txt",    "cestina.lng", "ng",          ""};
    EXPECT_EQ(ListFilesByExtension(names, "lng", "lng"),
              (std::vector<std::string>{"Cestina.lng", "cestina.lng", "english.LNG", "lng", "polski.lng"}));
    EXPECT_EQ(ListFilesByExtension(names, "LNG", "pol"), std::vector<std::string>{"polski.lng"});
}

} // namespace kitwright
