// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <Qsci/qsciscintilla.h>

namespace kitwright {

/// The editing control on a window: fixed-width font, CR LF line ends, black on white. It says when an event of the
/// user is over, which is the first moment at which its text may be edited in answer.
class ScintillaControl : public QsciScintilla {
    Q_OBJECT

public:
    explicit ScintillaControl(QWidget* parent = nullptr);

    /// True while a character is being composed from several keys.
    bool isComposing() const { return m_composing; }

Q_SIGNALS:
    /// An event has been handled whole.
    void eventHandled();

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    bool m_composing = false;
};

} // namespace kitwright
