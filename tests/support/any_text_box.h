// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/qt_text.h"
#include "platform/scintilla_control.h"
#include "platform/scintilla_text_box.h"
#include "platform/windows_1250.h"
#include "support/string_text_box.h"

#include <QTest>

namespace kitwright::testing {

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

    /// Types a text key by key at the caret; a line break is one key.
    void type(std::string_view keys)
    {
        if (!m_isReal)
            return m_standIn.type(keys);
        for (const QChar& character : toQt(keys)) {
            if (character == u'\n')
                QTest::keyClick(&m_control, Qt::Key_Return);
            else if (character != u'\r')
                QTest::sendKeyEvent(QTest::Click, &m_control, Qt::Key_unknown, QString(character), Qt::NoModifier);
        }
    }

private:
    bool m_isReal;
    StringTextBox m_standIn;
    ScintillaControl m_control;
    ScintillaTextBox m_real{m_control, windows1250()};
};

} // namespace kitwright::testing
