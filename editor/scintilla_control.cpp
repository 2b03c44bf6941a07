// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/scintilla_control.h"

#include "platform/qt_text.h"
#include "text/text_files.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <Qsci/qscicommandset.h>

namespace kitwright {

namespace {

QFont editorFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    // The family that a name like "monospace" stands for: the alias itself has no bold or italic member.
    font.setFamilies({QFontInfo(font).family()});
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
    // The desktop's own key for redo, beside Ctrl+Y.
    standardCommands()->find(QsciCommand::Redo)->setAlternateKey((Qt::CTRL | Qt::SHIFT | Qt::Key_Z).toCombined());
    setScrollWidth(1);
    setScrollWidthTracking(true);

    // The program styles the text itself: without a lexer of the control's own nothing else touches the styles.
    SendScintilla(SCI_SETLEXER, SCLEX_CONTAINER);
    connect(this, &QsciScintillaBase::SCN_STYLENEEDED, this,
            [this](int position) { SendScintilla(SCI_STARTSTYLING, static_cast<unsigned long>(position)); });
}

std::string ScintillaControl::takeExpected(std::size_t size) const
{
    if (m_expected.size() < size)
        m_expected.clear();
    const std::string next = m_expected.substr(0, size);
    m_expected.erase(0, size);
    return next;
}

bool ScintillaControl::event(QEvent* event)
{
    const bool handled = QsciScintilla::event(event);
    Q_EMIT eventHandled();
    return handled;
}

void ScintillaControl::keyPressEvent(QKeyEvent* event)
{
    const bool lineBreak = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const std::string typed = lineBreak ? std::string("\r\n") : fromQt(event->text());
    const std::string kept = keepable(typed);
    expectText(kept);
    if (kept == typed) {
        QsciScintilla::keyPressEvent(event);
    } else if (!kept.empty()) {
        QKeyEvent cut(event->type(), event->key(), event->modifiers(), toQt(kept), event->isAutoRepeat());
        QsciScintilla::keyPressEvent(&cut);
    }
    expectText({});
}

void ScintillaControl::inputMethodEvent(QInputMethodEvent* event)
{
    m_composing = !event->preeditString().isEmpty();
    const std::string kept = keepable(fromQt(event->commitString()));
    expectText(kept);
    QInputMethodEvent cut(event->preeditString(), event->attributes());
    cut.setCommitString(toQt(kept), event->replacementStart(), event->replacementLength());
    QsciScintilla::inputMethodEvent(&cut);
    event->setAccepted(cut.isAccepted());
    expectText({});
}

QByteArray ScintillaControl::fromMimeData(const QMimeData* source, bool& rectangular) const
{
    const QByteArray bytes = QsciScintilla::fromMimeData(source, rectangular);
    const std::string kept = withCrLf(keepable(bytes.toStdString()));
    expectText(kept);
    return QByteArray::fromStdString(kept);
}

/// The text without what the code page lacks.
std::string ScintillaControl::keepable(const std::string& text) const
{
    return m_codePage && !m_codePage->holds(text) ? m_codePage->keepable(text) : text;
}

bool ScintillaControl::viewportEvent(QEvent* event)
{
    const bool handled = QsciScintilla::viewportEvent(event);
    Q_EMIT eventHandled();
    return handled;
}

} // namespace kitwright
