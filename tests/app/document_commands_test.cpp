// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/document_commands.h"

#include "platform/qt_file_system.h"
#include "support/running_application.h"

#include <QTest>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

using Strings = std::vector<std::string>;

/// How a word of the C language looks by default.
constexpr TextStyle keyword = {0xC00000, true, false};

const std::string path = "/addon/config.cpp";

/// The editor with a language whose text N reads "text N".
struct Document : ::testing::Test {
    testing::RunningApplication app;
    testing::FakeDialogs& dialogs = app.dialogs;

    Document()
    {
        for (int number = 0; number < 76; ++number)
            app.file("/numbers.lng") += "text " + std::to_string(number) + "\r\n";
        app.startWith("/numbers.lng");
    }

    std::string& CurrentFile() { return app.state().CurrentFile; }
    std::string& PatchClassName() { return app.state().PatchClassName; }

    void useAnswering(const char* command, const std::optional<std::string>& file)
    {
        dialogs.openAnswers = {file};
        dialogs.saveAnswers = {file};
        app.use(command);
        dialogs.openAnswers.clear();
        dialogs.saveAnswers.clear();
    }

    /// Types a keyword behind the document.
    bool typingIsColoured()
    {
        QWidget& editor = app.control("configedit");
        QTest::keyClick(&editor, Qt::Key_End, Qt::ControlModifier);
        const Position end = app.box().caret();
        QTest::keyClicks(&editor, "class");
        return app.box().styleAt(end) == keyword;
    }
};

void expectAsked(const FileDialog& dialog, const char* filter, const char* fileName, const char* title)
{
    EXPECT_EQ(dialog.filter, filter);
    EXPECT_EQ(dialog.defaultExtension, "cpp");
    EXPECT_EQ(dialog.fileName, fileName);
    EXPECT_EQ(dialog.title, title);
}

} // namespace

TEST_F(Document, StartsAnewWithTheStartingTextOnceTheFormerOneIsSaved)
{
    app.box().setText("former");
    dialogs.textAnswers = {"MyAddon", "1.85"};
    useAnswering("cmdnew", path);
    EXPECT_EQ(app.file(path), "former");
    EXPECT_TRUE(app.files.fileExists("/addon/Stringtable.csv"));
    EXPECT_EQ(dialogs.prompts, (Strings{"text 59", "text 69"}));
    EXPECT_EQ(PatchClassName(), "MyAddon");
    EXPECT_EQ(app.caption(), "text 0");
    const auto expected = QtFileSystem().readBytes(KITWRIGHT_TOP "/tests/data/starting_text/my_addon.expected");
    EXPECT_EQ(app.text(), *expected);
    EXPECT_EQ(app.box().styleAt(app.text().find("class")), keyword);
    EXPECT_TRUE(typingIsColoured());
}

TEST_F(Document, StartsEmptyWithoutTheStartingText)
{
    app.state().Settings.InsertBaseText = false;
    PatchClassName() = "Former";
    app.box().setText("former");
    useAnswering("cmdnew", path);
    EXPECT_EQ(app.text(), "");
    EXPECT_EQ(PatchClassName(), "Former");
    EXPECT_EQ(dialogs.prompts, Strings());
}

TEST_F(Document, StaysInTheEditorWhenItIsNotSavedBeforeANewOne)
{
    app.files.unwritable = {"/full/config.cpp"};
    const std::optional<std::string> answers[] = {std::nullopt, "", "/full/config.cpp"};
    for (const auto& answer : answers) {
        app.box().setText("former");
        CurrentFile() = path;
        useAnswering("cmdnew", answer);
        EXPECT_EQ(CurrentFile(), answer.value_or(""));
        EXPECT_EQ(app.text(), "former");
        EXPECT_EQ(dialogs.prompts, Strings());
    }
    EXPECT_FALSE(app.files.fileExists(path));
}

TEST_F(Document, OpensWithItsNameAndColours)
{
    app.file(path) = "class CfgPatches\r\n{\r\n class Tanks\r\n {\r\n };\r\n};\r\n";
    useAnswering("cmdopen", path);
    expectAsked(dialogs.openAsked.at(0), "Config files|*.cpp*", "Config.cpp", "");
    EXPECT_EQ(app.box().styleAt(0), keyword);

    // What cannot be opened leaves everything as it is.
    const std::optional<std::string> answers[] = {path, std::nullopt, "", "/addon/gone.cpp"};
    for (const auto& answer : answers) {
        useAnswering("cmdopen", answer);
        EXPECT_EQ(app.text(), app.file(path));
        EXPECT_EQ(CurrentFile(), path);
        EXPECT_EQ(PatchClassName(), "Tanks");
        EXPECT_EQ(app.caption(), "text 0 - " + path);
    }
    EXPECT_TRUE(typingIsColoured());
}

TEST_F(Document, KeepsEveryByteThroughOpeningAndSaving)
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
        app.file(path) = before;
        useAnswering("cmdopen", path);
        app.use("cmdsave");
        EXPECT_EQ(app.file(path), after);
    }
    EXPECT_TRUE(dialogs.saveAsked.empty());
}

TEST_F(Document, TakesBackEditsButNotItsOpening)
{
    QWidget& editor = app.control("configedit");
    app.file(path) = "opened";
    QTest::keyClicks(&editor, "former");
    useAnswering("cmdopen", path);
    for (const char* typed : {"", "x"}) {
        QTest::keyClicks(&editor, typed);
        QTest::keyClick(&editor, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(app.text(), "opened");
    }
}

TEST_F(Document, AsksForItsFileAndForTheNameThatTheGameFinds)
{
    const std::string question = "text 66\r\ntext 67myconfig.cpp\r\ntext 68";
    const struct {
        std::string chosen;
        bool yes;
        std::string stored;
        Strings questions;
    } cases[] = {{"/a/config.cpp", true, "/a/config.cpp", {}},
                 {"/b/CONFIG.cpp", true, "/b/CONFIG.cpp", {}},
                 {"/c/myconfig.cpp", true, "/c/Config.cpp", {question}},
                 {"/d/myconfig.cpp", false, "/d/myconfig.cpp", {question}}};
    for (const auto& [chosen, yes, stored, questions] : cases) {
        CurrentFile().clear();
        dialogs.questions.clear();
        dialogs.yesNoAnswers = {yes};
        app.box().setText(chosen);
        useAnswering("cmdsave", chosen);
        EXPECT_EQ(dialogs.questions, questions);
        EXPECT_EQ(CurrentFile(), stored);
        EXPECT_EQ(app.file(stored), chosen);
        EXPECT_EQ(app.files.fileExists(chosen), chosen == stored);
        EXPECT_TRUE(app.files.fileExists(stored.substr(0, 3) + "Stringtable.csv"));
    }
    expectAsked(dialogs.saveAsked.at(0), "Config files|*.cpp*", "config.cpp", "text 65");
    EXPECT_EQ(app.caption(), "text 0");
    app.use("cmdsave");
    EXPECT_EQ(dialogs.saveAsked.size(), std::size(cases)) << "it is asked for once only";
}

TEST_F(Document, IsSavedUnderAnotherNameWithoutQuestions)
{
    app.box().setText("copy");
    useAnswering("cmdsaveas", "/copies/other.cpp");
    EXPECT_EQ(app.file("/copies/other.cpp"), "copy");
    EXPECT_EQ(CurrentFile(), "/copies/other.cpp");
    EXPECT_TRUE(dialogs.questions.empty());
    EXPECT_FALSE(app.files.fileExists("/copies/Stringtable.csv"));
    expectAsked(dialogs.saveAsked.at(0), "Config files|*.cpp*|All files|*.*", "config.cpp", "text 60");
    app.use("cmdsaveas");
    EXPECT_EQ(CurrentFile(), "") << "a cancelled one makes the next save ask";

    // The open dialog keeps the title of the last save.
    for (const char* command : {"cmdopen", "cmdsave", "cmdopen"})
        app.use(command);
    EXPECT_EQ(dialogs.openAsked.at(0).title, "text 60");
    EXPECT_EQ(dialogs.openAsked.at(1).title, "text 65");
}

TEST_F(Document, IsPackedAsLastSavedUnderItsName)
{
    app.use("Command2");
    EXPECT_EQ(dialogs.messages, Strings{"text 61"});
    EXPECT_TRUE(app.launcher.started.empty());

    CurrentFile() = "/my add-on, new/config.cpp";
    dialogs.textAnswers = {"MyAddon"};
    app.use("Command2");
    app.use("Command2");
    EXPECT_EQ(dialogs.prompts, Strings{"text 59"}) << "only an unknown name is asked for";
    EXPECT_EQ(PatchClassName(), "MyAddon");
    const std::pair<std::string, std::string> expected("/program/brakpak.exe",
                                                       "  /my add-on, new/config.cpp,/packed\\MyAddon.pbo,2");
    EXPECT_EQ(app.launcher.started, (std::vector{expected, expected}));
    EXPECT_FALSE(app.files.fileExists(CurrentFile()));
}

} // namespace kitwright
