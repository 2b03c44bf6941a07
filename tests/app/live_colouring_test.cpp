// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/live_colouring.h"

#include "app/colouring.h"
#include "coloured_document.h"
#include "text/text_files.h"

#include <QClipboard>

#include <random>

namespace kitwright {

namespace {

using testing::marked;
using testing::markedText;

/// Typing into a document, coloured live.
struct Typing : testing::ColouredDocument {
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

TEST_F(Typing, RestsWhileColouringIsOffOrPaused)
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
    {
        const LiveColouring::Pause pause(live);
        EXPECT_EQ(typed(), untouched);
    }
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

TEST_F(Typing, AtRandomIsUndoneAndRedoneWhole)
{
    constexpr auto shift = Qt::ShiftModifier;
    constexpr auto ctrl = Qt::ControlModifier;
    constexpr QKeyCombination keys[] = {Qt::Key_Backspace,   Qt::Key_Delete,   shift | Qt::Key_Left,
                                        shift | Qt::Key_Up,  Qt::Key_Up,       shift | Qt::AltModifier | Qt::Key_Up,
                                        ctrl | Qt::Key_Home, ctrl | Qt::Key_V, ctrl | Qt::Key_Z,
                                        ctrl | Qt::Key_Z,    ctrl | Qt::Key_Y, ctrl | Qt::Key_L};
    QGuiApplication::clipboard()->setText(QStringLiteral("class\nMAN Ω\r//ž "));
    const testing::Cells pieces = testing::scenarioLines("tables/pieces.txt").front();
    std::mt19937 random(5);
    for (int round = 0; round < 100; ++round) {
        open("Class |CFGPATCHES\r\n// man ž\r\n");
        const std::string first(box.text());
        for (int number = 0; number < 40; ++number) {
            const QKeyCombination key = keys[random() % std::size(keys)];
            if (random() % 3 > 0)
                type(pieces[random() % pieces.size()]);
            else
                QTest::keyClick(&control, key.key(), key.keyboardModifiers());
            ASSERT_TRUE(hasOnlyCrLf(box.text()) && windows1250().holds(box.text())) << round << ' ' << box.text();
        }
        while (control.isRedoAvailable())
            box.redo();
        const std::string last(box.text());
        while (control.isUndoAvailable())
            box.undo();
        ASSERT_EQ(box.text(), first) << round;
        while (control.isRedoAvailable())
            box.redo();
        ASSERT_EQ(box.text(), last) << round;
    }
}

TEST_F(Typing, OfWholeWordsComesToWhatAFullPassShows)
{
    const std::string words[] = {"class", "CFGPATCHES", "Man{", "škoda", "units[]", "x", "/", "a/b", "};"};
    std::mt19937 random(6);
    for (int round = 0; round < 100; ++round) {
        testing::loadMarked(box, "\r\n|");
        for (int number = 0; number < 30; ++number)
            type(words[random() % std::size(words)] + (random() % 3 == 0 ? "\r\n" : " "));
        const std::string typed = markedText(box);
        colourBox(box, keywords, settings);
        ASSERT_EQ(typed, markedText(box));
    }
}

} // namespace kitwright
