// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/application.h"

#include "platform/windows_1250.h"
#include "support/running_application.h"

#include <QListWidget>
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

/// The settings file as a first start leaves it while it asks for the language.
const std::string defaultRecord = "\x80\x80\xFF\0\0\0\0\0"   // commands: colour, bold, italic
                                  "\0\0\xC0\0\xFF\xFF\0\0"   // words of the C language
                                  "\xC0\x40\0\0\xFF\xFF\0\0" // class names
                                  "\xFF\xFF\0\0\0\0"         // starting text, declare from root, colouring off
                                  "\0\0\0\0\0\0\0\0"         // comments: bold, italic, colour
                                  "\0\0\0\0"s;               // two empty strings

struct Start : ::testing::Test {
    testing::RunningApplication app;

    EditorSettings stored()
    {
        EditorSettings settings;
        decodeSettings(app.file(settingsFile), windows1250(), settings);
        return settings;
    }

    qsizetype entriesOf(std::string_view tree, std::string_view window = "fmrconfigedit")
    {
        return app.control<QTreeWidget>(tree, window).findItems({}, Qt::MatchContains | Qt::MatchRecursive).size();
    }

    qsizetype linesOf(const std::string& path) { return static_cast<qsizetype>(dataLines(app.file(path)).size()); }
};

} // namespace

TEST_F(Start, WritesTheDefaultsAndAsksForALanguageWhenThereAreNoSettings)
{
    std::string atChooser;
    app.start([&](QWidget& chooser) {
        EXPECT_EQ(chooser.objectName(), "Form7");
        atChooser = app.file(settingsFile);
        chooser.close();
    });
    EXPECT_EQ(atChooser, defaultRecord);
    EXPECT_EQ(app.state().TextTable, UiTexts());
    EXPECT_EQ(app.caption(), "Brakvane - Add-ons editor");

    EditorSettings expected;
    expected.PboFolder = "/program";
    EXPECT_EQ(app.state().Settings, expected);
    EXPECT_EQ(app.file(settingsFile), defaultRecord);
    app.program().mainWindow().close();
    EXPECT_EQ(stored(), expected);
}

TEST_F(Start, SurvivesEverySettingsFile)
{
    EditorSettings full;
    full.PboFolder = "/packed";
    full.LanguageFile = "/program/Bfdata/languages/kitwright/deutsch.lng";
    const std::string record = encodeSettings(full, windows1250());
    EditorSettings withoutLanguage = full;
    withoutLanguage.LanguageFile.clear();

    const std::pair<std::string, EditorSettings> cases[] = {{record, full},
                                                            {record + "later fields", full},
                                                            {record.substr(0, record.size() - 1), withoutLanguage},
                                                            {record.substr(0, 5), {}},
                                                            {"", {}}};
    for (const auto& [bytes, expected] : cases) {
        app.file(settingsFile) = bytes;
        app.start();
        EXPECT_EQ(app.state().Settings, expected) << bytes.size();
        EXPECT_EQ(app.captionOf("Command1"), expected.LanguageFile.empty() ? "Konec" : "Beenden") << bytes.size();
        EXPECT_GT(app.program().keywords().count(), 100) << bytes.size();
    }
    app.file(settingsFile) = std::string(100, '\xFF');
    app.start();
    EXPECT_EQ(app.state().Settings.PboFolder, "");
    EXPECT_GT(app.program().keywords().count(), 100);
}

TEST_F(Start, FillsTreesListsAndKeywords)
{
    app.startWith();
    EXPECT_EQ(entriesOf("classes"), linesOf(classFile));
    EXPECT_EQ(entriesOf("commands"), linesOf(commandFile));
    EXPECT_EQ(entriesOf("vlastnosti", "frmvehikl"), linesOf(dataFolder + "kitwrightvehicles.dat"));
    EXPECT_EQ(app.control<QListWidget>("List1", "frmvehikl").count(), linesOf(dataFolder + "addvehicles.dat"));
    EXPECT_TRUE(app.dialogs.messages.empty());

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
    const std::string classesMessage = "Missing: " + classFile + "\r\n";
    const std::string commandsMessage = "Missing: " + commandFile + "\r\n";
    const std::pair<std::vector<std::string>, std::vector<std::string>> cases[] = {
        {{classFile}, {commandsMessage, commandsMessage}},
        {{commandFile}, {classesMessage}},
        {{}, {classesMessage, commandsMessage, commandsMessage}}};
    const auto all = app.files.files;
    for (const auto& [kept, messages] : cases) {
        app.files.files.clear();
        for (const std::string& path : kept)
            app.file(path) = all.at(path);
        app.dialogs.messages.clear();
        app.startWith("/gone.lng");
        EXPECT_EQ(app.dialogs.messages, messages);
        EXPECT_EQ(entriesOf("classes") + entriesOf("commands"), kept.empty() ? 0 : linesOf(kept[0]));
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
        EXPECT_EQ(stored().CommentColor, 0x123456U);
        EXPECT_FALSE(app.program().mainWindow().isVisible());
        for (const std::string& tool : tools)
            EXPECT_FALSE(app.window(tool).isVisible()) << tool;
    }
}

} // namespace kitwright
