// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/any_text_box.h"
#include "support/scenario.h"

#include <gtest/gtest.h>

#include <functional>

namespace kitwright {
namespace {

using namespace std::string_literals;
using testing::AnyTextBox;

/// The contract of the interface, kept by the stand-in and by the real control.
struct TextBox : ::testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Boxes, TextBox, ::testing::ValuesIn(AnyTextBox::kinds));

constexpr TextStyle red{0x0000FF, true, false};
constexpr TextStyle blue{0xFF0000, false, true};

/// One letter for the style of each byte: "." plain, "r" red, "b" blue.
std::string styles(const RichTextBox& box)
{
    std::string marks;
    for (Position i = 0; i < box.length(); ++i) {
        const TextStyle style = box.styleAt(i);
        marks += style == red ? 'r' : style == blue ? 'b' : style == TextStyle{} ? '.' : '?';
    }
    return marks;
}

struct Observer : TextObserver {
    bool willEditAfter(const PendingEdit& /*edit*/) override { return joins; }
    void textChanged(ChangeOrigin origin) override
    {
        heard += origin == ChangeOrigin::Edit ? 'e' : 'u';
        answer();
    }

    bool joins = false;
    std::function<void()> answer = [] {};
    std::string heard; ///< "e" for each edit, "u" for undo.
};

TEST_P(TextBox, LeavesCaretAndSelectionWhereTheyBelong)
{
    for (const auto& [before, start, length, text, after] : testing::scenarioTable<5>("tables/edits.txt")) {
        AnyTextBox box(GetParam(), {});
        testing::loadMarked(*box, before);
        if (start.empty())
            box->replaceSelection(text);
        else
            box->replaceRange(std::stoul(start), std::stoul(length), text);
        EXPECT_EQ(testing::withSelection(*box), after) << before;
    }
}

TEST_P(TextBox, ReadsAcrossEditsAndCutsRangesToTheText)
{
    AnyTextBox box(GetParam(), "a\r\n\0b"s);
    box->replaceRange(3, 0, "x");
    EXPECT_EQ(box->range(1, 4), "\r\nx\0"s);
    EXPECT_EQ(box->range(4, 99), "\0b"s);
    EXPECT_EQ(box->range(99, 1), "");
    EXPECT_EQ((std::string{box->at(1), box->at(5), box->at(6)}), "\rb\0"s);
    box->select(5, 99);
    box->replaceSelection("");
    box->select(99, 1);
    box->replaceSelection("y");
    EXPECT_EQ(box->range(3, 99), "x\0y"s);
    box->select(1, 1);
    box->setText("new");
    EXPECT_EQ(testing::withSelection(*box), "|new");
}

TEST_P(TextBox, CarriesStylesWithTheirCharacters)
{
    AnyTextBox box(GetParam(), "abcdef");
    box->styleRange(1, 2, red);
    box->styleRange(4, 99, blue);
    box->replaceRange(0, 0, "xx");
    box->replaceRange(4, 0, "y");
    EXPECT_EQ(styles(*box), "...r.r.bb");
    box->replaceRange(0, 4, "");
    EXPECT_EQ(styles(*box), ".r.bb");
    box->styleAll({{blue, TextStyle{}, red}, "\0"s + StyleMap::keep + "\2\1"s + StyleMap::keep});
    EXPECT_EQ(styles(*box), "brr.b");
    box->loadText("text");
    box->styleAll({{red}, std::string(3, StyleMap::keep) + '\0'});
    EXPECT_EQ(styles(*box), "...r");
}

TEST_P(TextBox, UndoesStepByStepAndTellsTheObserverOnceForEachEdit)
{
    AnyTextBox box(GetParam(), "first");
    Observer observer;
    box->setObserver(&observer);
    box->setText("one step");
    {
        const UndoStep outer(*box);
        box->replaceRange(0, 0, "a");
        const UndoStep inner(*box);
        box->replaceRange(0, 0, "b");
    }
    box->replaceSelection(""); // Changes nothing: the caret has stayed in front.
    box->select(0, 2);
    box->replaceSelection("X");
    box->styleRange(0, 3, red);
    box->styleAll({{blue}, std::string(box->length(), '\0')});
    EXPECT_EQ(observer.heard, "eeee");
    for (const char* earlier : {"baone step", "one step", "first", "first"}) {
        box.undo();
        EXPECT_EQ(box->text(), earlier);
    }
    EXPECT_EQ(observer.heard, "eeeeuuu");
    box->setText("edited");
    box->loadText("opened");
    box.undo();
    EXPECT_EQ(box->text(), "opened");
    EXPECT_EQ(observer.heard, "eeeeuuue");
}

TEST_P(TextBox, MakesAnAnnouncedAnswerPartOfTheEditsUndoStep)
{
    for (const bool joins : {true, false}) {
        AnyTextBox box(GetParam(), "abc");
        Observer observer;
        box->setObserver(&observer);
        observer.joins = joins;
        observer.answer = [&] { box->replaceRange(0, 1, "!"); };
        box->replaceRange(3, 0, "x");
        EXPECT_EQ(observer.heard, "e"); // An answer is not answered.
        EXPECT_EQ(box->text(), "!bcx");
        observer.answer = [] {};
        box.undo();
        EXPECT_EQ(box->text(), joins ? "abc" : "abcx");
    }
}

} // namespace
} // namespace kitwright
