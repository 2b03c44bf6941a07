// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/code_page.h"

#include <Qsci/qsciscintilla.h>

#include <string>

namespace kitwright {

/// The editing control on a window: fixed-width font, CR LF line ends, black on white. What is typed, composed, pasted
/// or dropped is cut to the code page before it enters the text. The control says when an event of the user is over,
/// which is the first moment at which its text may be edited in answer.
class ScintillaControl : public QsciScintilla {
    Q_OBJECT

public:
    explicit ScintillaControl(QWidget* parent = nullptr);

    /// Until this is called everything may enter. The code page must outlive the control.
    void setCodePage(const CodePage& codePage) { m_codePage = &codePage; }

    /// True while a character is being composed from several keys.
    bool isComposing() const { return m_composing; }

    /// Notes the text that is about to be inserted: the control's own notice of an insertion does not carry it.
    void expectText(std::string text) const { m_expected = std::move(text); }

    /// The next `size` bytes of what was noted; empty when less is known.
    std::string takeExpected(std::size_t size) const;

Q_SIGNALS:
    /// An event has been handled whole.
    void eventHandled();

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QByteArray fromMimeData(const QMimeData* source, bool& rectangular) const override;

private:
    std::string keepable(const std::string& text) const;

    const CodePage* m_codePage = nullptr;
    bool m_composing = false;
    mutable std::string m_expected;
};

} // namespace kitwright
