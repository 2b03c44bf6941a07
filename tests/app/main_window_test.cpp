// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/main_window.h"

#include "support/running_application.h"

#include <QApplication>
#include <QMenuBar>
#include <QTest>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

struct MainWindow : ::testing::Test {
    testing::RunningApplication app;

    MainWindow() { app.startWith(); }

    fmrconfigedit& window() { return app.program().mainWindow(); }

    QList<QRect> places()
    {
        QList<QRect> all;
        for (const QWidget* control :
             app.control("centralwidget").findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            all << control->geometry();
        return all;
    }
};

} // namespace

TEST_F(MainWindow, HasItsMenusInOrder)
{
    const std::pair<const char*, const char*> menus[] = {
        {"menubar", "mnufile mnuwizards mnusettings mnuabout "},
        {"mnufile", "mnufilenew mnufileopen mnusave mnusaveas mnufilecara- mnufilekonec "},
        {"mnuwizards", "mnuwizardfaces mnuwizardgun mnuammoadd mnuwizardvehikly "},
        {"mnusettings", "mnusetupedit mnijazyk "}};
    for (const auto& [menu, expected] : menus) {
        std::string names;
        for (const QAction* action : app.control(menu).actions())
            names += fromQt(action->objectName()) + (action->isSeparator() ? "- " : " ");
        EXPECT_EQ(names, expected);
    }
    QTest::keyClick(&app.control("configedit"), Qt::Key_Alt);
    EXPECT_TRUE(window().menuBar()->activeAction()) << "Alt does not reach the menus";
}

TEST_F(MainWindow, KeepsTheSharesOfItsControlsThroughAnyResizes)
{
    const QSize first = window().size();
    const QList<QRect> before = places();
    window().resize(first * 1.5);
    EXPECT_NE(places(), before);
    for (int size = 150; size < 1400; size += 37)
        window().resize(size, 1600 - size);
    app.control("centralwidget").resize(0, 0);
    window().showMinimized();
    window().showNormal();
    window().resize(first);
    QApplication::processEvents();
    EXPECT_EQ(places(), before);
}

TEST_F(MainWindow, KeepsEveryByteThroughOpeningAndSaving)
{
    std::string allBytes;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n')
            allBytes += static_cast<char>(byte);
    }
    const std::pair<std::string, std::string> cases[] = {
        {allBytes + "\r\n" + allBytes, allBytes + "\r\n" + allBytes},
        {"a\nb\rc\r\nd\n\re\n", "a\r\nb\r\nc\r\nd\r\n\r\ne\r\n"},
        {"no end of line", "no end of line"},
        {"", ""}};
    for (const auto& [before, after] : cases) {
        app.file("/config.cpp") = before;
        app.dialogs.openAnswers = {"/config.cpp"};
        app.use("cmdopen");
        app.use("cmdsave");
        EXPECT_EQ(app.file("/config.cpp"), after);
    }
}

TEST_F(MainWindow, InsertsTheStartingTextAsOneUndoStep)
{
    app.box().setText("Škoda");
    window().VlozText("MyAddon");
    EXPECT_NE(app.text().find("  class MyAddon\r\n"), std::string::npos);
    QTest::keyClick(&app.control("configedit"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(app.text(), "Škoda");
}

} // namespace kitwright
