// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/fake_host.h"

#include <gtest/gtest.h>

namespace kitwright {

TEST(ClassDeclarations, NameTheAncestorsOutermostFirst)
{
    const std::string land = "\r\n   class All {};\r\n   class Land: All {};\r\n";
    const std::pair<std::string, std::string> cases[] = {{"mAN", land + "   class Man: Land {};\r\n\r\n"},
                                                         {"Land", land + "\r\n"},
                                                         {"All", "\r\n\r\n"},
                                                         {"Twice", land + "   class Twice: Land {};\r\n\r\n"},
                                                         {"Men", ""}, // A heading.
                                                         {"Unknown", ""},
                                                         {"", ""}};
    for (const auto& [name, declared] : cases) {
        testing::FakeContext fake;
        addTreeLines("Men\r\n   All\r\n      Land\r\n         Man\r\n         Twice\r\n"
                     "Others\r\n   Base\r\n      Twice\r\n",
                     fake.host.classTree);
        fake.host.editor.loadText("text");
        DeclareBaseClasses(fake.host, name);
        EXPECT_EQ(fake.host.editor.text(), "text" + declared) << name;
        EXPECT_EQ(fake.host.colourings, declared.empty() ? 0 : 1) << name;
        EXPECT_EQ(fake.host.editor.undoSteps(), declared.empty() ? 0 : 1) << name;
    }
}

} // namespace kitwright
