// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/picture_button.h"

#include <QTest>
#include <gtest/gtest.h>

namespace kitwright {

TEST(PictureButton, IsFramedOnlyWhileItIsHeld)
{
    PictureButton button;
    button.resize(32, 32);
    const auto framed = [&] {
        const QImage picture = button.grab().toImage();
        const QColor frame = button.palette().color(QPalette::WindowText);
        EXPECT_NE(picture.pixelColor(2, 2), frame); // Thin.
        return picture.pixelColor(0, 10) == frame && picture.pixelColor(31, 31) == frame;
    };
    EXPECT_FALSE(framed());
    QTest::mousePress(&button, Qt::LeftButton);
    EXPECT_TRUE(framed());
    QTest::mouseMove(&button, QPoint(100, 100));
    EXPECT_FALSE(framed());
    QTest::mouseRelease(&button, Qt::LeftButton);
    QTest::keyPress(&button, Qt::Key_Space);
    EXPECT_TRUE(framed());
    QTest::keyRelease(&button, Qt::Key_Space);
    EXPECT_FALSE(framed());
}

} // namespace kitwright
