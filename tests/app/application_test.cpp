// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/application.h"

#include "lang/caption_table.h"
#include "support/session.h"
#include "text/windows_1250.h"

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

bool fits(const QWidget& control)
{
    const auto* label = qobject_cast<const QLabel*>(&control);
    return label && label->wordWrap() ? label->height() >= label->heightForWidth(label->width())
                                      : control.width() >= control.sizeHint().width();
}

QList<QRect> places(const QWidget& parent)
{
    QList<QRect> all;
    for (const QWidget* control : parent.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        all << control->geometry();
    return all;
}

} // namespace

TEST(Start, ShowsAllOfTheShippedData)
{
    testing::RunningApplication app;
    app.startWith();
    const std::array<std::string, 3> trees[] = {{"fmrconfigedit", "classes", "configclass.dat"},
                                                {"fmrconfigedit", "commands", "configcommands.dat"},
                                                {"frmvehikl", "vlastnosti", "kitwrightvehicles.dat"}};
    for (const auto& [window, tree, file] : trees) {
        const auto entries =
            app.control<QTreeWidget>(tree, window).findItems({}, Qt::MatchContains | Qt::MatchRecursive);
        EXPECT_EQ(entries.size(), dataLines(app.file("/program/Bfdata/kitwright/" + file)).size()) << file;
    }
    EXPECT_EQ(app.dialogs.log, "");
}

TEST(Start, ShowsTheLinesOfTheLanguageInControlsThatTheyFit)
{
    testing::Session session;
    for (const char* language : {"cestina", "english", "deutsch", "polski", "slovencina"}) {
        const std::string path = "/program/Bfdata/languages/kitwright/" + std::string(language) + ".lng";
        session.app.startWith(path);
        const QString text = toQt(windows1250().decode(session.app.file(path)));
        const QStringList lines = text.split(QStringLiteral("\r\n"));
        ASSERT_EQ(lines.size(), 77) << language << ": 76 lines, the last one ended";
        for (const auto& [window, control, number] : captionTable()) {
            SCOPED_TRACE(::testing::Message() << language << ' ' << window << '.' << control);
            session.app.window(window).show();
            const std::string line = fromQt(lines[static_cast<qsizetype>(number)]);
            EXPECT_NE(line, "");
            const std::string dot = control.empty() ? "" : ".";
            EXPECT_EQ(session.seen(std::string(window) + dot + std::string(control)), line);
            if (control.empty())
                continue;
            const auto* widget = qobject_cast<QWidget*>(&session.app.control<QObject>(control, window));
            EXPECT_TRUE(!widget || qobject_cast<const QMenu*>(widget) || fits(*widget));
        }
    }
}

TEST(MainWindow, WritesTheStringtableWithoutItsWindow)
{
    testing::RunningApplication app;
    app.startWith();
    app.dialogs.answers["save"] = {"/a/config.cpp"};
    app.use("cmdsave");
    EXPECT_TRUE(app.files.fileExists("/a/Stringtable.csv"));
    EXPECT_EQ(app.program().mainWindow().findChild<QWidget*>("Form4"), nullptr);
}

TEST(MainWindow, KeepsTheSharesOfItsControlsThroughAnyResizes)
{
    testing::RunningApplication app;
    app.startWith();
    QWidget& window = app.program().mainWindow();
    QWidget& parent = app.control("centralwidget");
    const QSize first = window.size();
    const QList<QRect> before = places(parent);
    window.resize(first * 1.5);
    EXPECT_NE(places(parent), before);
    for (int size = 150; size < 1400; size += 37)
        window.resize(size, 1600 - size);
    parent.resize(0, 0);
    window.showMinimized();
    window.showNormal();
    window.resize(first);
    QApplication::processEvents();
    EXPECT_EQ(places(parent), before);
}

} // namespace kitwright
