// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lang/caption_table.h"
#include "support/running_application.h"

#include <QAbstractButton>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QStringDecoder>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

const char* const languages[] = {"cestina", "english", "deutsch", "polski", "slovencina"};

std::string pathOf(const std::string& language)
{
    return "/program/Bfdata/languages/kitwright/" + language + ".lng";
}

/// Chooses a language in the window that the program shows for it.
void choose(QWidget& chooser, const QString& name)
{
    auto* list = chooser.findChild<QListWidget*>("List1");
    list->setCurrentItem(list->findItems(name, Qt::MatchExactly).value(0));
    chooser.findChild<QAbstractButton*>("Command1")->click();
}

bool fits(const QWidget& control)
{
    const auto* label = qobject_cast<const QLabel*>(&control);
    return label && label->wordWrap() ? label->height() >= label->heightForWidth(label->width())
                                      : control.width() >= control.sizeHint().width();
}

struct Captions : ::testing::Test {
    testing::RunningApplication app;

    void chooseByMenu(const QString& name)
    {
        testing::RunningApplication::withModal([this] { app.use("mnijazyk"); },
                                               [&](QWidget& chooser) { choose(chooser, name); });
    }
};

} // namespace

TEST_F(Captions, AreTheLinesOfTheChosenLanguageAndFitTheirControls)
{
    for (const char* language : languages) {
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

TEST_F(Captions, FollowTheChoiceOfAFirstStartAndOfEveryLaterOne)
{
    app.start([](QWidget& chooser) { choose(chooser, "deutsch.lng"); });
    EXPECT_EQ(app.captionOf("Command1"), "Beenden");
    app.program().mainWindow().close();
    app.start([](QWidget&) { ADD_FAILURE() << "the language is asked for again"; });
    EXPECT_EQ(app.state().Settings.LanguageFile, pathOf("deutsch"));
    EXPECT_EQ(app.captionOf("Command1"), "Beenden");

    chooseByMenu("english.lng");
    EXPECT_EQ(app.captionOf("Command1"), "Exit");
    app.use("cmdsave");
    EXPECT_EQ(app.dialogs.saveAsked.back().title, "Save add-on");
}

TEST_F(Captions, TakeThePathOutOfTheTitleWhenALanguageIsChosen)
{
    app.startWith(pathOf("english"));
    app.file("/addon/config.cpp") = "class CfgPatches\r\n";
    app.dialogs.openAnswers = {"/addon/config.cpp"};
    app.use("cmdopen");
    EXPECT_EQ(app.caption(), "Brakvane - Add-ons editor - /addon/config.cpp");
    chooseByMenu("deutsch.lng");
    EXPECT_EQ(app.caption(), app.state().TextTable[0]);
    EXPECT_EQ(app.state().CurrentFile, "/addon/config.cpp");
}

} // namespace kitwright
