// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/main_window.h"

#include "support/running_application.h"

#include <QApplication>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

QList<QRect> places(const QWidget& parent)
{
    QList<QRect> all;
    for (const QWidget* control : parent.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        all << control->geometry();
    return all;
}

} // namespace

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
