// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/scintilla_control.h"

#include <QFontDatabase>
#include <QInputMethodEvent>

namespace kitwright {

namespace {

QFont editorFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    constexpr int smallest = 10;
    if (font.pointSize() < smallest)
        font.setPointSize(smallest);
    return font;
}

} // namespace

ScintillaControl::ScintillaControl(QWidget* parent) : QsciScintilla(parent)
{
    setUtf8(true);
    setEolMode(QsciScintilla::EolWindows);
    setFont(editorFont());
    setColor(Qt::black);
    setPaper(Qt::white);
    setCaretLineVisible(true);
    setCaretLineBackgroundColor(QColor(0xF3, 0xF6, 0xFA));
    setScrollWidth(1);
    setScrollWidthTracking(true);

    // The program styles the text itself: without a lexer of the control's own nothing else touches the styles.
    SendScintilla(SCI_SETLEXER, SCLEX_CONTAINER);
    connect(this, &QsciScintillaBase::SCN_STYLENEEDED, this,
            [this](int position) { SendScintilla(SCI_STARTSTYLING, static_cast<unsigned long>(position)); });
}

bool ScintillaControl::event(QEvent* event)
{
    if (event->type() == QEvent::InputMethod)
        m_composing = !static_cast<const QInputMethodEvent*>(event)->preeditString().isEmpty();
    const bool handled = QsciScintilla::event(event);
    Q_EMIT eventHandled();
    return handled;
}

bool ScintillaControl::viewportEvent(QEvent* event)
{
    const bool handled = QsciScintilla::viewportEvent(event);
    Q_EMIT eventHandled();
    return handled;
}

} // namespace kitwright
