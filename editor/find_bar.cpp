// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/find_bar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QToolButton>
#include <Qsci/qsciscintilla.h>

namespace kitwright {

namespace {

QToolButton* arrowButton(QWidget* parent, Qt::ArrowType arrow, const QString& name)
{
    auto* button = new QToolButton(parent);
    button->setArrowType(arrow);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

} // namespace

FindBar::FindBar(QsciScintilla& editor) : QFrame(&editor), m_editor(editor), m_text(new QLineEdit(this))
{
    setObjectName(QStringLiteral("findBar"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    m_text->setObjectName(QStringLiteral("findText"));
    m_text->setAccessibleName(tr("Find"));
    m_text->setClearButtonEnabled(true);
    constexpr int textWidth = 220;
    m_text->setMinimumWidth(textWidth);

    QToolButton* previous = arrowButton(this, Qt::UpArrow, tr("Find previous"));
    QToolButton* next = arrowButton(this, Qt::DownArrow, tr("Find next"));
    auto* row = new QHBoxLayout(this);
    constexpr int margin = 4;
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(margin);
    row->addWidget(m_text);
    row->addWidget(previous);
    row->addWidget(next);
    hide();

    connect(previous, &QToolButton::clicked, this, [this] { find(false); });
    connect(next, &QToolButton::clicked, this, [this] { find(true); });
    connect(m_text, &QLineEdit::textEdited, this, &FindBar::findFromStart);
    m_text->installEventFilter(this);
    m_editor.installEventFilter(this);

    const auto key = [this](const QKeySequence& keys, auto action) {
        auto* shortcut = new QShortcut(keys, &m_editor);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    key(QKeySequence::Find, [this] { open(); });
    key(QKeySequence(Qt::Key_F3), [this] { find(true); });
    key(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { find(false); });
}

void FindBar::open()
{
    const QString selected = m_editor.selectedText();
    if (!selected.isEmpty() && !selected.contains(QLatin1Char('\n')))
        m_text->setText(selected);
    m_text->selectAll();
    show();
    place();
    m_text->setFocus();
}

void FindBar::close()
{
    hide();
    m_editor.setFocus();
}

void FindBar::find(bool forward)
{
    if (m_text->text().isEmpty()) {
        open();
        return;
    }
    constexpr bool asRegularExpression = false;
    constexpr bool matchCase = false;
    constexpr bool wholeWord = false;
    constexpr bool goRound = true;
    int line = 0;
    int column = 0;
    if (m_editor.hasSelectedText()) {
        int toLine = 0;
        int toColumn = 0;
        m_editor.getSelection(&line, &column, &toLine, &toColumn);
        if (forward) {
            line = toLine;
            column = toColumn;
        }
    } else {
        m_editor.getCursorPosition(&line, &column);
    }
    const bool found = m_editor.findFirst(m_text->text(), asRegularExpression, matchCase, wholeWord, goRound,
                                          forward, line, column);
    QPalette colours;
    if (!found)
        colours.setColor(QPalette::Base, QColor(0xFF, 0xDD, 0xDD));
    m_text->setPalette(colours);
}

/// While the text is typed the search starts where the last find began, so that a longer text refines it.
void FindBar::findFromStart()
{
    if (m_text->text().isEmpty())
        return;
    if (m_editor.hasSelectedText()) {
        int line = 0;
        int column = 0;
        int toLine = 0;
        int toColumn = 0;
        m_editor.getSelection(&line, &column, &toLine, &toColumn);
        m_editor.setCursorPosition(line, column);
    }
    find(true);
}

bool FindBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_editor && event->type() == QEvent::Resize && isVisible())
        place();
    if (watched == m_text && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<const QKeyEvent*>(event);
        if (key->key() == Qt::Key_Escape) {
            close();
            return true;
        }
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            find(!(key->modifiers() & Qt::ShiftModifier));
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void FindBar::place()
{
    adjustSize();
    const QRect view = m_editor.viewport()->geometry();
    constexpr int distance = 6;
    move(view.right() - width() - distance, view.top() + distance);
    raise();
}

} // namespace kitwright
