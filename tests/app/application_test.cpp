// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/application.h"

#include "lang/caption_table.h"
#include "support/running_application.h"

#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QStringDecoder>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

struct Start : ::testing::Test {
    testing::RunningApplication app;

    qsizetype entriesOf(std::string_view tree, std::string_view window = "fmrconfigedit")
    {
        return app.control<QTreeWidget>(tree, window).findItems({}, Qt::MatchContains | Qt::MatchRecursive).size();
    }

    qsizetype linesOf(const std::string& file)
    {
        return static_cast<qsizetype>(dataLines(app.file("/program/Bfdata/kitwright/" + file)).size());
    }
};

bool fits(const QWidget& control)
{
    const auto* label = qobject_cast<const QLabel*>(&control);
    return label && label->wordWrap() ? label->height() >= label->heightForWidth(label->width())
                                      : control.width() >= control.sizeHint().width();
}

} // namespace

TEST_F(Start, ShowsAllOfTheShippedData)
{
    app.startWith();
    EXPECT_EQ(entriesOf("classes"), linesOf("configclass.dat"));
    EXPECT_EQ(entriesOf("commands"), linesOf("configcommands.dat"));
    EXPECT_EQ(entriesOf("vlastnosti", "frmvehikl"), linesOf("kitwrightvehicles.dat"));
    EXPECT_EQ(app.control<QListWidget>("List1", "frmvehikl").count(), linesOf("addvehicles.dat"));
    EXPECT_EQ(app.dialogs.log, "");
}

TEST_F(Start, ShowsTheLinesOfTheLanguageInControlsThatTheyFit)
{
    for (const char* language : {"cestina", "english", "deutsch", "polski", "slovencina"}) {
        const std::string path = "/program/Bfdata/languages/kitwright/" + std::string(language) + ".lng";
        app.startWith(path);
        const QString text = QStringDecoder("windows-1250")(QByteArrayView(app.file(path)));
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
