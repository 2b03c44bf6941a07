// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/qt_text.h"
#include "text/rich_text_box.h"

#include <QTest>

#include <algorithm>

namespace kitwright::testing {

/// Types a text into a control key by key; a line break is one key.
inline void typeKeys(QWidget& control, std::string_view keys)
{
    for (const QChar& character : toQt(keys)) {
        if (character == u'\n')
            QTest::keyClick(&control, Qt::Key_Return);
        else if (character != u'\r')
            QTest::sendKeyEvent(QTest::Click, &control, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
}

/// Opens a text with "|" at the caret and, where something is to be selected, "[" at its start.
inline void loadMarked(RichTextBox& box, std::string text)
{
    const std::size_t start = std::min(text.find('['), text.find('|'));
    if (text[start] == '[')
        text.erase(start, 1);
    const std::size_t caret = text.find('|');
    box.loadText(text.erase(caret, 1));
    box.select(start, caret - start);
}

} // namespace kitwright::testing
