// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/live_colouring.h"

#include "app/colouring.h"
#include "support/any_text_box.h"
#include "support/scenario.h"
#include "support/style_marks.h"

#include <gtest/gtest.h>

namespace kitwright {

namespace {

using testing::marked;
using testing::markedText;

/// Typing into a box of either kind, coloured live.
struct Typing : ::testing::TestWithParam<const char*> {
    testing::AnyTextBox box{GetParam(), {}};
    KeywordList keywords = testing::sampleKeywords();
    EditorSettings settings = testing::distinctStyles();
    LiveColouring live{*box, keywords, settings};

    Typing() { live.ColouringEnabled = true; }

    /// A document whose caret stands at the "|", all of it in the old style, so that what a step leaves alone shows.
    void open(const std::string& text)
    {
        testing::loadMarked(*box, text);
        box->styleRange(0, box->length(), testing::oldStyle);
    }

    void typeAt(Position position, std::string_view keys)
    {
        box->select(position, 0);
        box.type(keys);
    }
};

INSTANTIATE_TEST_SUITE_P(Boxes, Typing, ::testing::ValuesIn(testing::AnyTextBox::kinds),
                         [](const auto& box) { return std::string(box.param); });

} // namespace

TEST_P(Typing, StylesTheSampleKeyByKey)
{
    std::string above;
    Position lineStart = 0;
    for (const auto& [key, line] : testing::scenarioTable<2>("tables/sample_keys.txt")) {
        box.type(key);
        if (key == "\r\n") {
            lineStart = box->length();
            above = markedText(*box);
        }
        ASSERT_EQ(marked(*box, lineStart), line);
        ASSERT_TRUE(markedText(*box).starts_with(above)) << line;
    }
}

TEST_P(Typing, RestylesTheWordAroundTheKey)
{
    for (const auto& [before, keys, after] : testing::scenarioTable<3>("tables/typing.txt")) {
        open(before);
        box.type(keys);
        EXPECT_EQ(marked(*box), after) << before << " " << keys;
        typeAt(0, "z"); // Out of any comment.
    }
}

TEST_P(Typing, StaysInACommentUntilALineBreakOrTheStartOfTheText)
{
    for (const auto& [document, position, keys, after] : testing::scenarioTable<4>("tables/comment_typing.txt")) {
        if (!document.empty())
            open(document);
        typeAt(std::stoul(position), keys);
        EXPECT_EQ(marked(*box), after);
    }
}

TEST_P(Typing, RestsWhileColouringIsOffOrHeld)
{
    const auto typed = [&] {
        open("x MA|");
        box.type("N //b");
        return marked(*box);
    };
    const std::string untouched = "<O:x MA>N //b|";
    settings.KeywordColouringOff = true;
    EXPECT_EQ(typed(), untouched);
    settings.KeywordColouringOff = false;
    live.ColouringEnabled = false;
    EXPECT_EQ(typed(), untouched);
    live.ColouringEnabled = true;
    live.hold();
    EXPECT_EQ(typed(), untouched);
    live.release();
    EXPECT_EQ(typed(), "<O:x ><N:Man> <K://b|>");
}

TEST_P(Typing, ShowsChangedSettingsInTheWordThatIsTypedInto)
{
    open("x class class Man |");
    colourBox(*box, keywords, settings);
    const EditorSettings before = settings;
    settings.CKeywordColor = 0x010101;
    settings.ClassNameBold = false;
    typeAt(2, "y");
    EXPECT_EQ(marked(*box, 0, before), "x y|<?:class> <L:class> <N:Man> ");
    EXPECT_EQ(marked(*box, 0, settings), "x y|<L:class> <?:class> <?:Man> ");
}

} // namespace kitwright
