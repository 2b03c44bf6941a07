// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/colouring.h"

#include "support/any_text_box.h"
#include "support/running_application.h"
#include "support/style_marks.h"

#include <QTest>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

using testing::marked;
using testing::markedText;

/// A full pass over a box of either kind.
struct FullPassOver : ::testing::TestWithParam<const char*> {
    testing::AnyTextBox box{GetParam(), {}};
    KeywordList keywords = testing::sampleKeywords();
    EditorSettings settings = testing::distinctStyles();

    void colour() { colourBox(*box, keywords, settings); }
};

INSTANTIATE_TEST_SUITE_P(Boxes, FullPassOver, ::testing::ValuesIn(testing::AnyTextBox::kinds),
                         [](const auto& box) { return std::string(box.param); });

/// The lines of an add-on, as typed by hand and as a full pass shows them.
constexpr const char* writtenLines =
    "Class CFGPATCHES\r\n{\r\n   units[] = {MAN}; //};\r\n   man  // class\r\n};\r\n";
constexpr const char* colouredLines =
    "<L:class> <L:CfgPatches>\r\n{\r\n   <C:units[]> = {MAN}; <K://};\r\n>   <N:Man>  "
    "<K:// class\r\n>};\r\n";

std::string repeated(std::string_view text, int times)
{
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

/// The program with a few keywords.
struct Program : ::testing::Test {
    testing::RunningApplication app;

    Program()
    {
        app.file("/program/Bfdata/kitwright/configclass.dat") = "People\r\n   Man\r\n";
        app.file("/program/Bfdata/kitwright/configcommands.dat") = "Lists\r\n   units[]\r\n";
        app.startWith();
        app.state().Settings = testing::distinctStyles();
    }

    void open(const std::string& text)
    {
        app.file("/addon/config.cpp") = text;
        app.dialogs.openAnswers = {"/addon/config.cpp"};
        app.use("cmdopen");
    }

    void type(const char* keys) { QTest::keyClicks(&app.control("configedit"), keys); }
    void undo() { QTest::keyClick(&app.control("configedit"), Qt::Key_Z, Qt::ControlModifier); }
    bool shows(const std::string& marks) { return markedText(app.box()) == marks; }
};

} // namespace

TEST_P(FullPassOver, StylesEveryWordThatABlankEndsAndEveryComment)
{
    // All of the text has the old style at first, so that what the pass leaves alone shows.
    const struct {
        std::string before;
        std::string after;
    } cases[] = {
        {"", ""},
        {" \r\n  \r\n", " \r\n  \r\n"},
        {"class requiredVersion Man\rx\n", "<L:class> <C:requiredVersion> <N:Man>\rx\n"},
        {"CLASS cfgpatches cLaSs\r\n", "<L:class> <L:CfgPatches> <L:class>\r\n"},
        {"ODD Odd odd ", "<O:odd> <O:odd> <O:odd> "},
        {"CfgPatches{ \tclass class; classes clas ", "CfgPatches{ \tclass class; classes clas "},
        {"class class", "<L:class> <O:class>"},
        {"class", "<O:class>"},
        {"ŠKODA škoda žena Žkoda ", "<N:Škoda> <N:Škoda> žena Žkoda "},
        {"x // class ž\r\nclass y\r\n", "x <K:// class ž\r\n><L:class> y\r\n"},
        {"};//end\r\nclass X ", "<O:};><K://end\r\n><L:class> X "},
        {"class//\r\n\r\n//a\r\nMan ", "<O:class><K://\r\n>\r\n<K://a\r\n><N:Man> "},
        {"//a\r//b\rclass \nclass ", "<K://a\r//b\rclass \n><L:class> "},
        {"a/b class/ / /x class ", "a/b class/ / /x <L:class> "},
        {"a / /class", "a / <O:/class>"},
        {"x /", "x <O:/>"},
        {"x //", "x <K://>"},
        {"a///b", "<O:a><K:///b>"},
        {writtenLines, colouredLines},
    };
    for (const auto& [before, after] : cases) {
        box->loadText(before);
        box->styleRange(0, box->length(), testing::oldStyle);
        colour();
        EXPECT_EQ(markedText(*box), after) << before;
    }
}

TEST_P(FullPassOver, LeavesTheCaretAndTheSelection)
{
    box->loadText("CLASS MAN x");
    box->select(2, 5);
    colour();
    EXPECT_EQ(marked(*box), "<L:class> <N:M|an> x");
    EXPECT_EQ(box->selection(), (Selection{2, 5}));
}

TEST_P(FullPassOver, IsOneUndoStepWhereItRespellsAndNoneWhereItOnlyColours)
{
    box.type("CLASS MAN ");
    const std::string typed(box->text());
    colour();
    EXPECT_EQ(box->text(), "class Man ");
    box->replaceSelection("y ");
    colour();
    box.undo();
    EXPECT_EQ(box->text(), "class Man ");
    box.undo();
    EXPECT_EQ(box->text(), typed);
}

TEST_P(FullPassOver, ColoursADocumentOfAnyLength)
{
    const int times = 1500;
    box->loadText(repeated(writtenLines, times));
    ASSERT_GT(box->length(), 100'000U);
    colour();
    EXPECT_TRUE(markedText(*box) == repeated(colouredLines, times));
}

TEST(FullPassOverTheControl, LeavesTheViewWhereItIs)
{
    ScintillaControl control;
    ScintillaTextBox box(control, windows1250());
    control.resize(300, 200);
    control.show();
    box.loadText(repeated(writtenLines, 100));
    using Sci = QsciScintillaBase;
    const Position last = box.length() - 30;
    control.SendScintilla(Sci::SCI_SETSELECTION, 3UL, static_cast<long>(last));
    for (const unsigned long line : {0UL, 200UL, 450UL}) {
        control.SendScintilla(Sci::SCI_SETFIRSTVISIBLELINE, line);
        box.replaceRange(box.length() - 10, 0, " CLASS ");
        colourBox(box, testing::sampleKeywords(), testing::distinctStyles());
        EXPECT_EQ(control.SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE), static_cast<long>(line));
        EXPECT_EQ(box.caret(), 3U);
        EXPECT_EQ(control.SendScintilla(Sci::SCI_GETANCHOR), static_cast<long>(last));
    }
}

TEST_F(Program, ColoursAConfigAsItOpensAndAgainWithoutAChange)
{
    const std::string written = repeated(writtenLines, 200);
    const std::string coloured = repeated(colouredLines, 200);
    open(written);
    EXPECT_TRUE(shows(coloured));

    type("x ");
    app.use("cmdrefresh");
    EXPECT_TRUE(shows("x " + coloured));
    app.use("cmdrefresh");
    EXPECT_TRUE(shows("x " + coloured));
    EXPECT_TRUE(app.window("Form2").windowHandle()) << "the wait window has not been shown";
    EXPECT_FALSE(app.window("Form2").isVisible());

    undo();
    EXPECT_TRUE(shows(coloured)) << "the author's last edit";
    undo();
    EXPECT_TRUE(app.text() == written) << "the respelling of the opened text";
    undo();
    EXPECT_TRUE(app.text() == written) << "opening is not undone";
    app.box().select(app.box().length(), 0);
    type(" CLASS");
    EXPECT_TRUE(app.text().ends_with(" class")) << "typing is coloured again after the passes";
}

TEST_F(Program, ColoursNothingWhileColouringIsOff)
{
    app.state().Settings.KeywordColouringOff = true;
    open("class Man\r\n//x\r\n");
    type(" CLASS x//");
    app.use("cmdrefresh");
    EXPECT_TRUE(shows(" CLASS x//class Man\r\n//x\r\n"));
    EXPECT_FALSE(app.window("Form2").windowHandle()) << "the wait window has been shown";
}

} // namespace kitwright
