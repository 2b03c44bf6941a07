// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/windows_1250.h"

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
    // Dashes and quotes that the code page has, and others; letters of other scripts; bytes that are no UTF-8: a lead
    // byte alone, an overlong slash, half of a surrogate pair, a character cut short, one beyond the last.
    const std::pair<std::string, std::string> cases[] = {{"– ‘’‚ “”„ …", "– ‘’‚ “”„ …"},
                                                         {"\u2010\u2012\u2212", "---"},
                                                         {"\u201B\u2032\u201F\u2033", "''\"\""},
                                                         {"a\u2003b\u202Fc", "a b c"},
                                                         {"a😀b", "ab"},
                                                         {"naïve à", "nave "},
                                                         {"e\u0301日", "e"},
                                                         {"a\xFF\xC3(b", "a(b"},
                                                         {"\xC0\xAF\xED\xA0\x80", ""},
                                                         {"ok\xE2\x82", "ok"},
                                                         {"\xF4\x90\x80\x80\xF8", ""}};
    for (const auto& [text, kept] : cases) {
        EXPECT_EQ(windows1250().keepable(text), kept) << text;
        EXPECT_EQ(windows1250().holds(text), text == kept) << text;
    }
}

} // namespace kitwright
