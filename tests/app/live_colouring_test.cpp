// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/live_colouring.h"

#include "app/colouring.h"
#include "coloured_document.h"
#include "text/letter_case.h"

#include <random>
#include <set>

namespace kitwright {

namespace {

using testing::marked;
using testing::markedText;

/// Typing into a document, coloured live.
struct Typing : testing::ColouredDocument {
    Typing() { live.ColouringEnabled = true; }

    LiveColouring live{box, keywords, settings};

    /// A document whose caret stands at the "|", all of it in the old style, so that what a step leaves alone shows.
    void open(const std::string& text)
    {
        testing::loadMarked(box, text);
        box.styleRange(0, box.length(), testing::oldStyle);
    }

    void typeAt(Position position, std::string_view keys)
    {
        box.select(position, 0);
        type(keys);
    }
};

} // namespace

TEST_F(Typing, StylesTheSampleKeyByKey)
{
    std::string above;
    Position lineStart = 0;
    for (const auto& [key, line] : testing::scenarioTable<2>("tables/sample_keys.txt")) {
        type(key);
        if (key == "\r\n") {
            lineStart = box.length();
            above = markedText(box);
        }
        ASSERT_EQ(marked(box, lineStart), line);
        ASSERT_TRUE(markedText(box).starts_with(above)) << line;
    }
}

TEST_F(Typing, RestylesTheWordAroundTheKey)
{
    for (const auto& [before, keys, after] : testing::scenarioTable<3>("tables/typing.txt")) {
        open(before);
        type(keys);
        EXPECT_EQ(marked(box), after) << before << " " << keys;
        typeAt(0, "z"); // Out of any comment.
    }
}

TEST_F(Typing, StaysInACommentUntilALineBreakOrTheStartOfTheText)
{
    for (const auto& [document, position, keys, after] : testing::scenarioTable<4>("tables/comment_typing.txt")) {
        if (!document.empty())
            open(document);
        typeAt(std::stoul(position), keys);
        EXPECT_EQ(marked(box), after);
    }
}

TEST_F(Typing, RestsWhileColouringIsOffOrHeld)
{
    const auto typed = [&] {
        open("x MA|");
        type("N //b");
        return marked(box);
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

TEST_F(Typing, ShowsChangedSettingsInTheWordThatIsTypedInto)
{
    open("x class class Man |");
    colourBox(box, keywords, settings);
    const EditorSettings before = settings;
    settings.CKeywordColor = 0x010101;
    settings.ClassNameBold = false;
    typeAt(2, "y");
    EXPECT_EQ(marked(box, 0, before), "x y|<?:class> <L:class> <N:Man> ");
    EXPECT_EQ(marked(box, 0, settings), "x y|<L:class> <?:class> <?:Man> ");
}

TEST_F(Typing, KeepsTheAuthorsTextAtRandomPlacesAndUndoesIt)
{
    std::mt19937 random(5);
    const testing::Cells pieces = testing::scenarioLines("tables/pieces.txt").front();
    const auto isWhole = [&](Position end) { return windows1250().holds(box.range(0, end)); };
    for (int round = 0; round < 100; ++round) {
        box.loadText({});
        std::set<std::string> seen{""};
        for (int number = 0; number < 40; ++number) {
            const Position start = random() % (box.length() + 1);
            const Position end = std::min<Position>(start + random() % 4, box.length());
            if (random() % 4 == 0 && isWhole(start) && isWhole(end))
                box.select(start, end - start);
            const std::string& keys = pieces[random() % pieces.size()];
            const Selection replaced = box.selection();
            std::string expected(box.text());
            expected.replace(replaced.start, replaced.length, keys);
            for (const QChar key : toQt(keys)) {
                type(fromQt(QString(key)));
                seen.emplace(box.text());
            }
            ASSERT_EQ(upperCased(box.text()), upperCased(expected));
            ASSERT_EQ(box.caret(), replaced.start + keys.size());
        }
        // The control takes several keys as one undo step.
        while (control.isUndoAvailable()) {
            box.undo();
            ASSERT_TRUE(seen.contains(std::string(box.text()))) << box.text();
        }
        ASSERT_EQ(box.text(), "");
    }
}

} // namespace kitwright
