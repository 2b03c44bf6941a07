// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/edit_protocol.h"

#include <QScopeGuard>
#include <Qsci/qsciscintilla.h>

namespace kitwright {

namespace {

using Sci = QsciScintillaBase;

/// The notices that are heard, all of what is about to happen. Styling is not among them.
constexpr unsigned long comingEdits = Sci::SC_MOD_INSERTCHECK | Sci::SC_MOD_BEFOREINSERT | Sci::SC_MOD_BEFOREDELETE;

/// What the control passes on to assistive technology, and sends its own signals of.
constexpr unsigned long doneEdits = Sci::SC_MOD_INSERTTEXT | Sci::SC_MOD_DELETETEXT;

constexpr int undoOrRedo = Sci::SC_PERFORMED_UNDO | Sci::SC_PERFORMED_REDO;

} // namespace

EditProtocol::EditProtocol(QsciScintilla& control) : m_control(control)
{
    hear();
    connect(&m_control, &Sci::SCN_MODIFIED, this,
            [this](int position, int kind, const char* /*text*/, int length) { noticed(position, kind, length); });
}

void EditProtocol::hear()
{
    m_control.SendScintilla(Sci::SCI_SETMODEVENTMASK, m_spoken ? comingEdits | doneEdits : comingEdits);
}

void EditProtocol::setSpoken(bool spoken)
{
    m_spoken = spoken;
    hear();
}

void EditProtocol::expect(const QByteArray& text)
{
    m_expected = text;
    m_taken = 0;
}

/// The next bytes of what was expected; empty when less is known.
std::string_view EditProtocol::takeExpected(qsizetype size)
{
    if (m_expected.size() - m_taken < size)
        return {};
    const std::string_view next(m_expected.constData() + m_taken, static_cast<std::size_t>(size));
    m_taken += size;
    return next;
}

void EditProtocol::noticed(int position, int kind, int length)
{
    const auto start = static_cast<Position>(position);
    if (kind & Sci::SC_MOD_INSERTCHECK) {
        announce({start, 0, takeExpected(length)});
    } else if (kind & static_cast<int>(comingEdits)) {
        const bool isHistory = (kind & undoOrRedo) != 0;
        if ((kind & Sci::SC_MOD_BEFOREDELETE) && !isHistory)
            announce({start, static_cast<Position>(length), {}});
        noteChange(isHistory ? ChangeOrigin::UndoRedo : ChangeOrigin::Edit);
    }
}

/// Opens an undo step around a coming edit when the observer will edit in answer to it.
void EditProtocol::announce(const PendingEdit& edit)
{
    if (!m_observer || m_state == State::Answering || m_joined || m_composing)
        return;
    m_joined = m_observer->willEditAfter(edit);
    if (m_joined)
        m_control.SendScintilla(Sci::SCI_BEGINUNDOACTION);
}

void EditProtocol::noteChange(ChangeOrigin origin)
{
    if (m_state == State::Answering)
        return;
    m_origin = origin;
    // An edit that comes neither from an event nor through the box is answered as soon as events run again.
    if (m_state == State::Settled)
        QMetaObject::invokeMethod(this, &EditProtocol::settle, Qt::QueuedConnection);
    m_state = State::Changed;
}

void EditProtocol::settle()
{
    if (m_state == State::Answering || m_composing)
        return;
    const auto settled = qScopeGuard([this] {
        m_state = State::Settled;
        if (m_joined)
            m_control.SendScintilla(Sci::SCI_ENDUNDOACTION);
        m_joined = false;
    });
    if (m_state == State::Settled)
        return;
    m_state = State::Answering;
    if (m_observer)
        m_observer->textChanged(m_origin);
    tellListeners();
}

void EditProtocol::withoutNotice(const std::function<void()>& edits)
{
    const auto again = qScopeGuard([this] { hear(); });
    m_control.SendScintilla(Sci::SCI_SETMODEVENTMASK, 0UL);
    edits();
}

void EditProtocol::tellListeners()
{
    Q_EMIT m_control.textChanged();
    const int lines = m_control.lines();
    if (lines != m_lines)
        Q_EMIT m_control.linesChanged();
    m_lines = lines;
}

} // namespace kitwright
