// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/plain_labels.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QToolTip>
#include <gtest/gtest.h>

namespace kitwright {

TEST(PlainLabels, ShowTextsWithTagsAsTheyStand)
{
    const QString page = QStringLiteral("<img src=\"/dev/zero\"><b>odd</b>");
    const PlainLabels plain;
    QLabel label(page);
    QInputDialog question;
    question.setLabelText(page);
    label.show();
    question.show();
    QToolTip::showText({}, page, &label);
    int shown = 0;
    for (const QWidget* widget : QApplication::allWidgets()) {
        const auto* found = qobject_cast<const QLabel*>(widget);
        if (!found || found->text() != page)
            continue;
        ++shown;
        EXPECT_EQ(found->textFormat(), Qt::PlainText) << found->metaObject()->className();
    }
    EXPECT_EQ(shown, 3);
    QToolTip::hideText();
}

} // namespace kitwright
