// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/application.h"

#include "lang/caption_table.h"
#include "platform/windows_1250.h"
#include "support/running_application.h"

#include <QAbstractButton>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QStringDecoder>
#include <QTreeWidget>
#include <QWindow>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

using namespace std::string_literals;

const std::string settingsFile = "/program/Kitwright.cfg";
const std::string dataFolder = "/program/Bfdata/kitwright/";
const std::string classFile = dataFolder + "configclass.dat";
const std::string commandFile = dataFolder + "configcommands.dat";

struct Start : ::testing::Test {
    testing::RunningApplication app;

    static std::string pathOf(const std::string& language)
    {
        return "/program/Bfdata/languages/kitwright/" + language + ".lng";
    }

    qsizetype entriesOf(std::string_view tree, std::string_view window = "fmrconfigedit")
    {
        return app.control<QTreeWidget>(tree, window).findItems({}, Qt::MatchContains | Qt::MatchRecursive).size();
    }

    qsizetype linesOf(const std::string& path) { return static_cast<qsizetype>(dataLines(app.file(path)).size()); }
};

bool fits(const QWidget& control)
{
    const auto* label = qobject_cast<const QLabel*>(&control);
    return label && label->wordWrap() ? label->height() >= label->heightForWidth(label->width())
                                      : control.width() >= control.sizeHint().width();
}

} // namespace

TEST_F(Start, WritesTheDefaultsAndAsksOnceForALanguageWhenThereAreNoSettings)
{
    app.start([&](QWidget& chooser) {
        EXPECT_EQ(chooser.objectName(), "Form7");
        EXPECT_EQ(app.file(settingsFile), encodeSettings({}, windows1250()));
        EXPECT_EQ(app.state().TextTable, UiTexts());
        EXPECT_EQ(app.caption(), "Brakvane - Add-ons editor");
        auto* list = chooser.findChild<QListWidget*>("List1");
        list->setCurrentItem(list->findItems("deutsch.lng", Qt::MatchExactly).value(0));
        chooser.findChild<QAbstractButton*>("Command1")->click();
    });
    EXPECT_EQ(app.captionOf("Command1"), "Beenden");
    EXPECT_EQ(app.file(settingsFile), encodeSettings({}, windows1250()));
    app.program().mainWindow().close();

    app.start([](QWidget&) { ADD_FAILURE() << "the language is asked for again"; });
    EditorSettings expected;
    expected.PboFolder = "/program";
    expected.LanguageFile = pathOf("deutsch");
    EXPECT_EQ(app.state().Settings, expected);
    EXPECT_EQ(app.captionOf("Command1"), "Beenden");
}

TEST_F(Start, SurvivesASettingsFileThatIsNone)
{
    for (const std::string& bytes : {std::string(), std::string(5, 'x'), std::string(100, '\xFF')}) {
        app.file(settingsFile) = bytes;
        app.start([](QWidget&) { ADD_FAILURE() << "a language is asked for"; });
        EXPECT_EQ(app.captionOf("Command1"), "Konec");
        EXPECT_GT(app.program().keywords().count(), 100);
    }
}

TEST_F(Start, FillsTreesListsAndKeywords)
{
    app.startWith();
    EXPECT_EQ(entriesOf("classes"), linesOf(classFile));
    EXPECT_EQ(entriesOf("commands"), linesOf(commandFile));
    EXPECT_EQ(entriesOf("vlastnosti", "frmvehikl"), linesOf(dataFolder + "kitwrightvehicles.dat"));
    EXPECT_EQ(app.control<QListWidget>("List1", "frmvehikl").count(), linesOf(dataFolder + "addvehicles.dat"));
    EXPECT_EQ(app.dialogs.log, "");

    app.file(classFile) = "* vehicles *\r\n   Tank\r\n   Class\r\n";
    app.file(commandFile) = "commands\r\n   TANK\r\n";
    app.startWith();
    std::string list;
    const KeywordList& keywords = app.program().keywords();
    for (int i = 0; i < keywords.count(); ++i)
        list += std::string(keywords.textAt(i)) + std::to_string(static_cast<int>(keywords.classAt(i))) + ' ';
    EXPECT_EQ(list, "#define2 CfgPatches2 Class3 class2 commands1 Tank3 ");
}

TEST_F(Start, TellsOfMissingKeywordFilesOnly)
{
    const std::string classesMessage = "tell Missing: " + classFile + "\\r\\n\n";
    const std::string commandsMessage = "tell Missing: " + commandFile + "\\r\\n\n";
    const std::pair<std::string, std::string> cases[] = {{classFile, commandsMessage + commandsMessage},
                                                         {commandFile, classesMessage},
                                                         {"", classesMessage + commandsMessage + commandsMessage}};
    const auto all = app.files.files;
    for (const auto& [kept, messages] : cases) {
        app.files.files.clear();
        if (!kept.empty())
            app.file(kept) = all.at(kept);
        app.dialogs.log.clear();
        app.startWith("/gone.lng");
        EXPECT_EQ(app.dialogs.log, messages);
        EXPECT_EQ(entriesOf("classes") + entriesOf("commands"), kept.empty() ? 0 : linesOf(kept));
        EXPECT_EQ(app.caption(), "") << "the captions are set from the empty table";
    }
    EXPECT_EQ(app.program().keywords().count(), 3);
}

TEST_F(Start, IsFollowedByAnEndThatClosesEverythingAndWritesTheSettings)
{
    const std::function<void()> ends[] = {[this] { app.use("Command1"); }, [this] { app.use("mnufilekonec"); },
                                          [this] { app.program().mainWindow().windowHandle()->close(); }};
    for (const auto& end : ends) {
        app.startWith();
        const std::string tools[] = {"Form1", "Form3", "Form4", "Form9", "frmfaceaddon", "frmvehikl"};
        for (const std::string& tool : tools)
            app.program().showBeside(toQt(tool));
        app.state().Settings.CommentColor = 0x123456;
        EXPECT_TRUE(testing::RunningApplication::endsBy(end));
        EXPECT_EQ(app.file(settingsFile).substr(34, 4), "\x56\x34\x12\0"s);
        EXPECT_FALSE(app.program().mainWindow().isVisible());
        for (const std::string& tool : tools)
            EXPECT_FALSE(app.window(tool).isVisible()) << tool;
    }
}

TEST_F(Start, ShowsTheLinesOfTheLanguageInControlsThatTheyFit)
{
    for (const char* language : {"cestina", "english", "deutsch", "polski", "slovencina"}) {
        app.startWith(pathOf(language));
        const QString text = QStringDecoder("windows-1250")(QByteArrayView(app.file(pathOf(language))));
        const QStringList lines = text.split(QStringLiteral("\r\n"));
        ASSERT_EQ(lines.size(), 77) << language << ": 76 lines, the last one ended";
        for (const auto& [windowName, control, number] : captionTable()) {
            SCOPED_TRACE(::testing::Message() << language << ' ' << windowName << '.' << control);
            QWidget& window = app.window(windowName);
            window.show();
            const std::string line = fromQt(lines[static_cast<qsizetype>(number)]);
            EXPECT_NE(line, "");
            EXPECT_EQ(control.empty() ? fromQt(window.windowTitle()) : app.captionOf(control, windowName), line);
            if (control.empty())
                continue;
            const auto* widget = qobject_cast<QWidget*>(&app.control<QObject>(control, windowName));
            EXPECT_TRUE(!widget || qobject_cast<const QMenu*>(widget) || fits(*widget));
        }
    }
}

} // namespace kitwright
