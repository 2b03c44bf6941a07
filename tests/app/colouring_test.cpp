// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/colouring.h"

#include "coloured_document.h"
#include "support/running_application.h"

namespace kitwright {

namespace {

using testing::marked;
using testing::markedText;

struct FullPassOverADocument : testing::ColouredDocument {
    void colour() { colourBox(box, keywords, settings); }
};

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

} // namespace

TEST_F(FullPassOverADocument, StylesEveryWordThatABlankEndsAndEveryComment)
{
    // All of the text has the old style at first, so that what the pass leaves alone shows.
    for (const auto& [before, after] : testing::scenarioTable<2>("tables/full_pass.txt")) {
        box.loadText(before);
        box.styleRange(0, box.length(), testing::oldStyle);
        colour();
        EXPECT_EQ(markedText(box), after) << before;
        box.loadText(before);
        colour();
        const std::string opened = markedText(box);
        loadColoured(box, before, keywords, settings);
        EXPECT_EQ(markedText(box), opened) << before;
        EXPECT_FALSE(control.isUndoAvailable());
    }
}

TEST_F(FullPassOverADocument, LeavesTheSelectionAndIsAnUndoStepOnlyWhereItRespells)
{
    type("CLASS MAN ");
    const std::string typed(box.text());
    box.select(2, 5);
    colour();
    EXPECT_EQ(marked(box), "<L:class> <N:M|an> ");
    EXPECT_EQ(box.selection(), (Selection{2, 5}));
    box.replaceSelection("y ");
    colour();
    box.undo();
    EXPECT_EQ(box.text(), "class Man ");
    box.undo();
    EXPECT_EQ(box.text(), typed);
}

TEST_F(FullPassOverADocument, ColoursADocumentOfAnyLength)
{
    const int times = 1500;
    const std::string longComment = "//" + std::string(200'000, 'x') + " class \r\n";
    const std::string coloured = repeated(colouredLines, times) + "<K:" + longComment + ">" + colouredLines;
    box.loadText(repeated(writtenLines, times) + longComment + writtenLines);
    colour();
    EXPECT_TRUE(markedText(box) == coloured);
    loadColoured(box, repeated(writtenLines, times) + longComment + writtenLines, keywords, settings);
    EXPECT_TRUE(markedText(box) == coloured);
}

TEST_F(FullPassOverADocument, LeavesTheViewWhereItIs)
{
    control.resize(300, 200);
    control.show();
    box.loadText(repeated(writtenLines, 100));
    using Sci = QsciScintillaBase;
    const Position last = box.length() - 30;
    control.SendScintilla(Sci::SCI_SETSELECTION, 3UL, static_cast<long>(last));
    for (const unsigned long line : {0UL, 200UL, 450UL}) {
        control.SendScintilla(Sci::SCI_SETFIRSTVISIBLELINE, line);
        box.replaceRange(box.length() - 10, 0, " CLASS ");
        colour();
        EXPECT_EQ(control.SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE), static_cast<long>(line));
        EXPECT_EQ(box.caret(), 3U);
        EXPECT_EQ(control.SendScintilla(Sci::SCI_GETANCHOR), static_cast<long>(last));
    }
}

TEST(FullPassOfTheProgram, ShowsTheWaitWindowUnlessColouringIsOff)
{
    for (const bool off : {true, false}) {
        testing::RunningApplication app;
        app.startWith();
        app.state().Settings.KeywordColouringOff = off;
        app.use("cmdrefresh");
        EXPECT_EQ(app.window("Form2").windowHandle() != nullptr, !off);
        EXPECT_FALSE(app.window("Form2").isVisible());
    }
}

TEST(FullPassOfTheProgram, LetsEventsRunWhenTheUndoStepOfTheChangeIsOver)
{
    testing::RunningApplication app;
    app.startWith();
    app.box().setText("CLASS x\r\n");
    auto& main = app.program().mainWindow();
    QObject::connect(&main, &fmrconfigedit::fullPassBegins, [&] { app.box().replaceRange(0, 0, "y"); });
    {
        const DocumentChange change(main);
        app.box().replaceRange(app.box().length(), 0, "MAN ");
        main.Uprav2();
    }
    for (const char* earlier : {"yclass x\r\nMan ", "class x\r\nMan ", "CLASS x\r\n"}) {
        EXPECT_EQ(app.box().text(), earlier);
        dynamic_cast<ScintillaTextBox&>(app.box()).undo();
    }
}

} // namespace kitwright
