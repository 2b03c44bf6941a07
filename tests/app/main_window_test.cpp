// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/main_window.h"

#include "support/running_application.h"

#include <QApplication>
#include <QClipboard>
#include <QMenuBar>
#include <QTest>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

using Pairs = std::vector<std::pair<const char*, const char*>>;

struct MainWindow : ::testing::Test {
    testing::RunningApplication app;

    MainWindow() { app.startWith(); }

    fmrconfigedit& window() { return app.program().mainWindow(); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QTest::keyClick(&app.control("configedit"), key, modifiers);
    }

    QList<QRect> places()
    {
        QList<QRect> all;
        for (const QWidget* control :
             app.control("centralwidget").findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            all << control->geometry();
        return all;
    }
};

std::string namesOf(const QWidget& menu)
{
    std::string names;
    for (const QAction* action : menu.actions())
        names += fromQt(action->objectName()) + (action->isSeparator() ? "- " : " ");
    return names;
}

} // namespace

TEST_F(MainWindow, BearsTheDesignersCaptionsUntilALanguageIsApplied)
{
    EXPECT_EQ(app.caption(), "Brakvane - Add-ons editor");
    const Pairs captions = {{"mnufile", "Soubor"},
                            {"mnufilenew", "Nový"},
                            {"mnufileopen", "Otevřít"},
                            {"mnusave", "Uložit"},
                            {"mnusaveas", "Uložit jako"},
                            {"mnufilekonec", "Konec"},
                            {"mnuwizards", "Průvodci"},
                            {"mnuwizardfaces", "Obličejový addon..."},
                            {"mnuwizardgun", "Zbraň addon..."},
                            {"mnuammoadd", "Munice addon..."},
                            {"mnuwizardvehikly", "Vehikly..."},
                            {"mnusettings", "Nastavení"},
                            {"mnusetupedit", "Editor..."},
                            {"mnijazyk", "Jazyk"},
                            {"mnuabout", "O Aplikaci"},
                            {"Label1", "Classes:"},
                            {"Label2", "Commands:"},
                            {"Command1", "Konec"},
                            {"Command2", "Make Pbo"}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(app.captionOf(name), caption) << name;
    const Pairs toolTips = {{"cmdnew", "Nový"},
                            {"cmdopen", "Otevřít"},
                            {"cmdsave", "Uložit"},
                            {"cmdsaveas", "Uložit jako"},
                            {"cmdrejstrik", "Rejstřík"}};
    for (const auto& [name, toolTip] : toolTips)
        EXPECT_EQ(fromQt(app.control(name).toolTip()), toolTip) << name;
}

TEST_F(MainWindow, HasItsMenusInOrder)
{
    const Pairs menus = {{"menubar", "mnufile mnuwizards mnusettings mnuabout "},
                         {"mnufile", "mnufilenew mnufileopen mnusave mnusaveas mnufilecara- mnufilekonec "},
                         {"mnuwizards", "mnuwizardfaces mnuwizardgun mnuammoadd mnuwizardvehikly "},
                         {"mnusettings", "mnusetupedit mnijazyk "}};
    for (const auto& [menu, names] : menus)
        EXPECT_EQ(namesOf(app.control(menu)), names);
    press(Qt::Key_Alt, Qt::NoModifier);
    EXPECT_TRUE(window().menuBar()->activeAction()) << "Alt does not reach the menus";
}

TEST_F(MainWindow, RunsTheSameCommandByButtonEntryAndKey)
{
    const struct {
        const char* button;
        const char* entry;
        QKeyCombination key;
        const char* saveTitle;
    } cases[] = {{"cmdnew", "mnufilenew", Qt::CTRL | Qt::Key_N, "65"},
                 {"cmdopen", "mnufileopen", Qt::CTRL | Qt::Key_O, ""},
                 {"cmdsave", "mnusave", Qt::CTRL | Qt::Key_S, "65"},
                 {"cmdsaveas", "mnusaveas", Qt::CTRL | Qt::SHIFT | Qt::Key_S, "60"}};
    app.state().TextTable[60] = "60";
    app.state().TextTable[65] = "65";
    for (const auto& [button, entry, key, saveTitle] : cases) {
        app.dialogs.openAsked.clear();
        app.dialogs.saveAsked.clear();
        app.use(button);
        app.use(entry);
        press(key.key(), key.keyboardModifiers());
        const bool saves = *saveTitle != '\0';
        EXPECT_EQ(app.dialogs.openAsked.size(), saves ? 0U : 3U) << button;
        EXPECT_EQ(app.dialogs.saveAsked.size(), saves ? 3U : 0U) << button;
        for (const FileDialog& asked : app.dialogs.saveAsked)
            EXPECT_EQ(asked.title, saveTitle) << button;
    }
}

TEST_F(MainWindow, ShowsEveryOtherWindowOnce)
{
    const auto opensModally = [this](const char* control, QWidget*& opened) {
        opened = nullptr;
        return testing::RunningApplication::withModal([&] { app.use(control); },
                                                      [&](QWidget& came) { opened = &came; });
    };
    QWidget* opened = nullptr;
    const Pairs modal = {{"cmdrejstrik", "frmrejstrik2"},
                         {"cmdsetup", "Form5"},
                         {"mnusetupedit", "Form5"},
                         {"mnijazyk", "Form7"},
                         {"mnuabout", "Form8"}};
    for (const auto& [control, name] : modal) {
        EXPECT_TRUE(opensModally(control, opened)) << control;
        EXPECT_EQ(opened, &app.window(name)) << control;
    }
    const Pairs beside = {{"cmdstrings", "Form4"},   {"cmdhelp", "Form9"},    {"mnuwizardfaces", "frmfaceaddon"},
                          {"mnuwizardgun", "Form1"}, {"mnuammoadd", "Form3"}, {"mnuwizardvehikly", "frmvehikl"}};
    for (const auto& [control, name] : beside) {
        EXPECT_FALSE(opensModally(control, opened)) << control;
        QWidget& tool = app.window(name);
        EXPECT_TRUE(tool.isVisible() && !tool.isModal()) << control;
        tool.close();
        EXPECT_EQ(&app.window(name), &tool) << "its close box only hides it";
    }
}

TEST_F(MainWindow, ReturnsToTheFirstLayoutAfterAnyResizes)
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

TEST_F(MainWindow, EditsAsEveryEditorDoes)
{
    const auto ctrl = [this](Qt::Key key) { press(key, Qt::ControlModifier); };
    EXPECT_TRUE(app.control("configedit").hasFocus());
    QTest::keyClicks(&app.control("configedit"), "weapons");
    press(Qt::Key_Return, Qt::NoModifier);
    QTest::keyClicks(&app.control("configedit"), "units");
    ctrl(Qt::Key_A);
    ctrl(Qt::Key_C);
    EXPECT_EQ(QApplication::clipboard()->text(), "weapons\r\nunits");
    ctrl(Qt::Key_X);
    EXPECT_EQ(app.text(), "");
    ctrl(Qt::Key_Z);
    EXPECT_EQ(app.text(), "weapons\r\nunits");
    ctrl(Qt::Key_Y);
    QApplication::clipboard()->setText(QStringLiteral("Škoda\n120"));
    ctrl(Qt::Key_V);
    EXPECT_EQ(app.text(), "Škoda\r\n120");

    window().VlozText("MyAddon");
    EXPECT_NE(app.text().find("  class MyAddon\r\n"), std::string::npos);
    ctrl(Qt::Key_Z);
    EXPECT_EQ(app.text(), "Škoda\r\n120") << "an insertion of the program is one step";
}

} // namespace kitwright
