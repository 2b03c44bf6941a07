// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/scenario.h"
#include "text/letter_case.h"
#include "text/windows_1250.h"

#include <QString>
#include <gtest/gtest.h>

namespace kitwright {

TEST(CodePage, GivesEveryByteBackAlsoTheUnassignedOnes)
{
    const CodePage& page = windows1250();
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    const std::string text = page.decode(bytes);
    EXPECT_EQ(page.encode(text), bytes);
    EXPECT_EQ(page.keepable(text), text);
    EXPECT_EQ(page.decode("\xEC\x9A\xE8\xF8\x9E \xA0\x80\x85"), "ěščřž \u00A0€…");
}

TEST(CodePage, KeepsWhatAFileCanHold)
{
    for (const auto& [text, kept] : testing::scenarioTable<2>("tables/kept_characters.txt")) {
        EXPECT_EQ(windows1250().keepable(text), kept) << text;
        EXPECT_EQ(windows1250().holds(text), text == kept) << text;
    }
}

TEST(LetterCase, RaisesEveryLetterOfTheCodePage)
{
    // A letter whose capital the code page lacks keeps its form.
    for (int byte = 0; byte < 256; ++byte) {
        const std::string letter = windows1250().decode(std::string(1, static_cast<char>(byte)));
        const QString capital = QString::fromStdString(letter).toUpper();
        const bool has = capital.size() == 1 && windows1250().holds(capital.toStdString());
        EXPECT_EQ(upperCased(letter), has ? capital.toStdString() : letter) << byte;
        EXPECT_TRUE(equalIgnoringCase(letter, upperCased(letter))) << byte;
    }
    for (const std::string text : {"\xC5", "a\xC4", "\xC5z", "\xFF\xFE", "日a", "\xC3\xBF", "ß"})
        EXPECT_EQ(upperCased(text).size(), text.size()) << text;
}

} // namespace kitwright
