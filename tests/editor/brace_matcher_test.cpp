// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/brace_matcher.h"

#include "editor/scintilla_control.h"

#include <QImage>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <span>

namespace kitwright {

TEST(BraceMatcher, FindsThePartnerHoweverFarItIs)
{
    const QColor matched(0xC8, 0xE3, 0xF5);
    const QColor alone(0xFF, 0xDD, 0xDD);
    const QString far = QString("( { } [ ] )\r\n").repeated(30'000);
    const struct {
        QString text;
        bool caretAtEnd;
        QColor seen;
    } cases[] = {{"{" + far + "}", false, matched}, {"[" + far + "]", true, matched},
                 {"{" + far + ")", false, alone},   {"{{}", false, alone},
                 {"{(}", false, matched},           {"x" + far, false, {}}};
    ScintillaControl control;
    new BraceMatcher(control);
    control.resize(400, 100);
    control.show();
    const auto shows = [&](const QColor& colour) {
        const QImage image = control.grab().toImage().convertToFormat(QImage::Format_RGB32);
        const std::span pixels(reinterpret_cast<const QRgb*>(image.constBits()),
                               static_cast<std::size_t>(image.width() * image.height()));
        return std::find(pixels.begin(), pixels.end(), colour.rgb()) != pixels.end();
    };
    for (const auto& [text, caretAtEnd, seen] : cases) {
        control.setText(text);
        const auto end = static_cast<unsigned long>(text.size());
        control.SendScintilla(QsciScintillaBase::SCI_GOTOPOS, caretAtEnd ? end : 0UL);
        const auto isRight = [&, seen = seen] {
            return shows(matched) == (seen == matched) && shows(alone) == (seen == alone);
        };
        QTest::qWait(10);
        EXPECT_TRUE(QTest::qWaitFor(isRight, 5000)) << text.left(5).toStdString() << caretAtEnd;
    }
}

} // namespace kitwright
