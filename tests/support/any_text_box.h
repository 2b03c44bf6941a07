// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/qt_text.h"
#include "platform/scintilla_control.h"
#include "platform/scintilla_text_box.h"
#include "platform/windows_1250.h"
#include "fuzz/support/string_text_box.h"

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

/// A box's text with "|" at the caret and, where something is selected, "[" at its start.
inline std::string withSelection(const RichTextBox& box)
{
    std::string text(box.text());
    text.insert(box.caret(), "|");
    return box.selection().length == 0 ? text : text.insert(box.selection().start, "[");
}

/// Opens a text with its selection written as above.
inline void loadMarked(RichTextBox& box, std::string text)
{
    const std::size_t start = std::min(text.find('['), text.find('|'));
    if (text[start] == '[')
        text.erase(start, 1);
    const std::size_t caret = text.find('|');
    box.loadText(text.erase(caret, 1));
    box.select(start, caret - start);
}

/// A rich-text box of either kind, so that one set of cases runs against the stand-in and the real control.
class AnyTextBox {
public:
    /// What a test is parameterised with.
    static constexpr const char* kinds[] = {"StandIn", "Control"};

    AnyTextBox(const std::string& kind, std::string_view text) : m_isReal(kind == kinds[1])
    {
        (*this)->loadText(text);
    }

    RichTextBox& operator*() { return m_isReal ? static_cast<RichTextBox&>(m_real) : m_standIn; }
    RichTextBox* operator->() { return &**this; }
    void undo() { m_isReal ? m_real.undo() : m_standIn.undo(); }

    /// Types a text at the caret.
    void type(std::string_view keys) { m_isReal ? typeKeys(m_control, keys) : m_standIn.type(keys); }

private:
    bool m_isReal;
    fuzzing::StringTextBox m_standIn;
    ScintillaControl m_control;
    ScintillaTextBox m_real{m_control, windows1250()};
};

} // namespace kitwright::testing
