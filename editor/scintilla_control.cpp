// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/scintilla_control.h"

#include "editor/edit_protocol.h"
#include "platform/qt_text.h"
#include "text/text_files.h"

#include <QAccessibleWidget>
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

/// Answers for the control before its own factory does, which comes later as that of its base class.
QAccessibleInterface* plainInterface(const QString& className, QObject* object)
{
    const auto* control = className == QLatin1String(ScintillaControl::staticMetaObject.className())
                            ? qobject_cast<const ScintillaControl*>(object)
                            : nullptr;
    return control && !control->isSpoken()
             ? new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::EditableText)
             : nullptr;
}

} // namespace

ScintillaControl::ScintillaControl(QWidget* parent)
    : QsciScintilla(parent),
      m_edits(std::make_unique<EditProtocol>(*this)),
      m_spoken(QAccessible::isActive())
{
    m_edits->setSpoken(m_spoken);
    QAccessible::installFactory(plainInterface);
    QAccessible::installActivationObserver(this);
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

ScintillaControl::~ScintillaControl()
{
    QAccessible::removeActivationObserver(this);
}

void ScintillaControl::accessibilityActiveChanged(bool active)
{
    if (active == m_spoken)
        return;
    m_spoken = active;
    m_edits->setSpoken(active);
    // Whoever asks next gets the other interface.
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(this)));
    if (!active)
        return;
    // The new one hears where caret and selection stand when they are set once more, and are painted.
    QAccessible::queryAccessibleInterface(this);
    SendScintilla(SCI_SETANCHOR, static_cast<unsigned long>(SendScintilla(SCI_GETANCHOR)));
    SendScintilla(SCI_SETMAINSELECTION, static_cast<unsigned long>(SendScintilla(SCI_GETMAINSELECTION)));
}

bool ScintillaControl::event(QEvent* event)
{
    const bool handled = QsciScintilla::event(event);
    m_edits->settle();
    return handled;
}

void ScintillaControl::keyPressEvent(QKeyEvent* event)
{
    const bool lineBreak = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const std::string typed = lineBreak ? std::string("\r\n") : fromQt(event->text());
    const std::string kept = keepable(typed);
    m_edits->expect(QByteArray::fromStdString(kept));
    if (kept == typed) {
        QsciScintilla::keyPressEvent(event);
    } else if (!kept.empty()) {
        QKeyEvent cut(event->type(), event->key(), event->modifiers(), toQt(kept), event->isAutoRepeat());
        QsciScintilla::keyPressEvent(&cut);
    }
    m_edits->expect({});
}

void ScintillaControl::inputMethodEvent(QInputMethodEvent* event)
{
    m_edits->setComposing(!event->preeditString().isEmpty());
    const std::string kept = keepable(fromQt(event->commitString()));
    m_edits->expect(QByteArray::fromStdString(kept));
    QInputMethodEvent cut(event->preeditString(), event->attributes());
    cut.setCommitString(toQt(kept), event->replacementStart(), event->replacementLength());
    QsciScintilla::inputMethodEvent(&cut);
    event->setAccepted(cut.isAccepted());
    m_edits->expect({});
}

QByteArray ScintillaControl::fromMimeData(const QMimeData* source, bool& rectangular) const
{
    const QByteArray bytes = QsciScintilla::fromMimeData(source, rectangular);
    const QByteArray kept = QByteArray::fromStdString(withCrLf(keepable(bytes.toStdString())));
    m_edits->expect(kept);
    return kept;
}

/// The text without what the code page lacks.
std::string ScintillaControl::keepable(const std::string& text) const
{
    return m_codePage && !m_codePage->holds(text) ? m_codePage->keepable(text) : text;
}

bool ScintillaControl::viewportEvent(QEvent* event)
{
    const bool handled = QsciScintilla::viewportEvent(event);
    m_edits->settle();
    return handled;
}

} // namespace kitwright
