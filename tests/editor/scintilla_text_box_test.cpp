// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/scintilla_text_box.h"

#include "editor/scintilla_control.h"
#include "support/typing.h"
#include "text/windows_1250.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <gtest/gtest.h>

namespace kitwright {
namespace {

/// The real control as a person uses it. While `answers` is set, a "!" is put in front of the text after each change.
struct Control : ::testing::Test, TextObserver {
    Control() { box.setObserver(this); }
    bool willEditAfter(const PendingEdit& /*edit*/) override { return answers; }
    void textChanged(ChangeOrigin origin) override
    {
        ++heard;
        if (answers && origin == ChangeOrigin::Edit)
            box.replaceRange(0, 0, "!");
    }

    void type(const QString& text) { QTest::sendKeyEvent(QTest::Click, &control, Qt::Key_unknown, text, {}); }
    void ctrl(Qt::Key key) { QTest::keyClick(&control, key, Qt::ControlModifier); }
    void paste(const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
        ctrl(Qt::Key_V);
    }
    void compose(const QString& preedit, const QString& commit)
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(&control, &event);
    }

    ScintillaControl control;
    ScintillaTextBox box{control, windows1250()};
    bool answers = false;
    int heard = 0;
};

TEST_F(Control, DropsWhatTheCodePageLacksAndMendsLineEndsHoweverTextComes)
{
    for (const char* typed : {"a", "ž", "日", "\u2212", "😀"})
        type(typed);
    paste("😀č\n\u2003\r\n…\r");
    EXPECT_EQ(box.text(), "až-č\r\n \r\n…\r\n");
    compose("´", {});
    compose({}, "á日\u2010");
    QTest::keyClick(&control, Qt::Key_Return);
    box.replaceRange(0, 1, "😀\xFFq\n");
    EXPECT_EQ(box.text(), "q\r\nž-č\r\n \r\n…\r\ná-\r\n");
    EXPECT_EQ(box.caret(), box.length());
    box.setText("日\r");
    EXPECT_EQ(box.text(), "\r\n");
}

TEST_F(Control, KeepsTheSelectionOnItsCharactersWhenTheProgramEdits)
{
    const std::tuple<std::string, Position, Position, std::string, std::string> cases[] = {
        {"abc|d", 0, 1, "XYZ", "XYZbc|d"}, {"a|bcd", 2, 2, "", "a|b"},       {"ab|cd", 2, 0, "X", "ab|Xcd"},
        {"ab|cd", 1, 2, "X", "aX|d"},      {"ž[cd|e", 3, 0, "č", "ž[cčd|e"}, {"[ab|cd", 2, 0, "X", "[ab|Xcd"},
        {"a[bc|d", 0, 2, "", "[c|d"},      {"a|b", 99, 5, "X", "a|bX"}};
    for (const auto& [before, start, length, by, after] : cases) {
        testing::loadMarked(box, before);
        box.replaceRange(start, length, by);
        const std::string text(box.text());
        const Selection selection = box.selection();
        testing::loadMarked(box, after);
        EXPECT_TRUE(box.text() == text && box.selection() == selection) << before << ' ' << text;
    }
}

TEST_F(Control, ForgetsARectangleWhenTheProgramSelects)
{
    box.loadText("0123456");
    box.select(7, 0);
    QTest::keyClick(&control, Qt::Key_Left, Qt::AltModifier | Qt::ShiftModifier);
    type("x");
    box.setText("012345");
    box.replaceRange(6, 0, "\r\n9");
    EXPECT_EQ(box.caret(), 0U);
    type("y");
    EXPECT_EQ(box.text(), "y012345\r\n9");
}

TEST_F(Control, AnswersEachEventOnceWithinItsUndoStep)
{
    // The control hears of changes by another way while somebody listens to it through assistive technology.
    answers = true;
    for (const bool spoken : {false, true}) {
        QAccessible::setActive(spoken);
        heard = 0;
        box.loadText("abc");
        box.select(3, 0);
        type("x");
        paste("y");
        QTest::keyClick(&control, Qt::Key_Backspace);
        QTest::keyClick(&control, Qt::Key_Left);
        EXPECT_EQ(box.text(), "!!!abcx");
        EXPECT_EQ(heard, 3);
        for (const char* earlier : {"!!abcxy", "!abcx"}) {
            ctrl(Qt::Key_Z);
            EXPECT_EQ(box.text(), earlier);
        }
        compose("´", {});
        EXPECT_EQ(heard, 5);
        compose({}, "á");
        EXPECT_EQ(heard, 6);
        control.append("z"); // An edit of the control's own interface is answered once events run.
        QCoreApplication::processEvents();
        EXPECT_EQ(heard, 7);
    }
    QAccessible::setActive(false);
}

TEST_F(Control, ShowsItsTextToAssistiveTechnologyOnceThatIsActive)
{
    const auto interface = [&] { return QAccessible::queryAccessibleInterface(&control); };
    control.show();
    box.loadText("žcd");
    box.select(2, 1);
    for (const bool active : {false, true, false}) {
        QAccessible::setActive(active);
        EXPECT_EQ(interface()->role(), QAccessible::EditableText);
        ASSERT_EQ(interface()->textInterface() != nullptr, active);
        if (!active)
            continue;
        control.grab();
        EXPECT_EQ(interface()->textInterface()->cursorPosition(), 2);
        EXPECT_EQ(interface()->textInterface()->selectionCount(), 1);
        type("x");
        control.grab();
        EXPECT_EQ(interface()->textInterface()->text(0, 3), "žxd");
        EXPECT_EQ(interface()->textInterface()->cursorPosition(), 2);
    }
}

TEST_F(Control, RespellsWordsWithoutTouchingAnythingElse)
{
    const TextStyle red{0x0000FF, false, false};
    box.loadText("ab cd ef");
    box.styleRange(3, 2, red);
    box.select(1, 3);
    const Respelling words[] = {{0, "AB"}, {3, "CD"}};
    box.respell(words);
    EXPECT_EQ(box.text(), "AB CD ef");
    EXPECT_TRUE(box.styleAt(2) == TextStyle() && box.styleAt(3) == red && box.styleAt(4) == red);
    EXPECT_EQ(box.selection(), (Selection{1, 3}));
    EXPECT_EQ(heard, 1);
    box.undo();
    EXPECT_EQ(box.text(), "ab cd ef");
}

TEST_F(Control, LendsOutStyleNumbersAgain)
{
    // There are fewer than 256. However many are free when a map comes, its styles must not be mixed up.
    for (std::uint32_t used = 230; used < 260; ++used) {
        box.loadText("abcd");
        for (std::uint32_t number = 1; number <= used; ++number)
            box.styleRange(0, 4, {number << 8, false, false});
        const std::uint32_t own = (used - 200) << 16;
        const StyleMap map{{{own + 1}, {own + 2}, {own + 3}}, std::string("\0\1\2", 3) + StyleMap::keep};
        box.applyStyles(0, map);
        for (Position i = 0; i < 3; ++i)
            EXPECT_EQ(box.styleAt(i), map.palette[i]) << used << ' ' << i;
        EXPECT_EQ(box.styleAt(3), (TextStyle{used << 8, false, false})) << used;
    }
}

} // namespace
} // namespace kitwright
