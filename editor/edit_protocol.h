// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/rich_text_box.h"

#include <QByteArray>
#include <QObject>

#include <functional>

class QsciScintilla;

namespace kitwright {

/// How an edit of a control's text and the observer's answer to it follow each other, and become one undo step where
/// the answer is an edit, too. Whoever edits (keys, mouse, clipboard, input method, the program), the sequence is:
///
/// 1. `expect`: whoever brings a text notes it, because the control's own notice of an insertion does not carry it.
/// 2. The control gives notice of an edit. The observer is asked whether it will edit in answer; if so, an undo step
///    is opened.
/// 3. The control edits. Its text cannot be changed from inside its notices, so the answer waits.
/// 4. `settle`, once the event of the user or the call of the program is over: the observer answers, the control's
///    listeners are told, and the undo step is closed.
///
/// The observer's own edits run through 2 and 3 without being asked about or answered. While a character is composed
/// of several keys, 2 and 4 wait for the last of them.
class EditProtocol final : public QObject {
    Q_OBJECT

public:
    /// The control must outlive it.
    explicit EditProtocol(QsciScintilla& control);

    /// See `RichTextBox::setObserver`.
    void setObserver(TextObserver* observer) { m_observer = observer; }

    void expect(const QByteArray& text);
    void settle();

    void setComposing(bool composing) { m_composing = composing; }
    bool isComposing() const { return m_composing; }

    /// While assistive technology listens, the control tells it of every change, counting characters from the start
    /// of the text: a cost that grows with the document.
    void setSpoken(bool spoken);

    /// Runs edits of which the control gives no notice. They are no change to answer, and join no undo step.
    void withoutNotice(const std::function<void()>& edits);

    /// Counts the edits of a `withoutNotice` as one change, which the next `settle` has answered.
    void noteChange(ChangeOrigin origin);

    /// Sends the control's own signals of a change, which it leaves out where it does not tell of an edit that is done.
    void tellListeners();

private:
    enum class State { Settled, Changed, Answering };

    void hear();
    void noticed(int position, int kind, int length);
    void announce(const PendingEdit& edit);
    std::string_view takeExpected(qsizetype size);

    QsciScintilla& m_control;
    TextObserver* m_observer = nullptr;
    QByteArray m_expected;
    qsizetype m_taken = 0; ///< Bytes of it that were inserted.
    State m_state = State::Settled;
    ChangeOrigin m_origin = ChangeOrigin::Edit;
    bool m_joined = false; ///< An undo step is open that the answer shall belong to.
    bool m_composing = false;
    bool m_spoken = false;
    int m_lines = 1; ///< Lines that the listeners last heard of.
};

} // namespace kitwright
