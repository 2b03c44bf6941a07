// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/code_page.h"

#include <QAccessible>
#include <Qsci/qsciscintilla.h>

#include <memory>
#include <string>

namespace kitwright {

class EditProtocol;

/// The editing control on a window: fixed-width font, CR LF line ends, black on white. What is typed, composed, pasted
/// or dropped is cut to the code page before it enters the text.
///
/// Assistive technology finds the text in it from when it becomes active. Until then the control passes for a plain
/// widget: its text interface, once something has asked for it, counts characters from the start of the text at each
/// paint, whether or not anyone listens.
class ScintillaControl : public QsciScintilla, private QAccessible::ActivationObserver {
    Q_OBJECT

public:
    explicit ScintillaControl(QWidget* parent = nullptr);
    ~ScintillaControl() override;

    /// Until this is called everything may enter. The code page must outlive the control.
    void setCodePage(const CodePage& codePage) { m_codePage = &codePage; }

    /// Where the changes of the text are told, and answered when an event of the user is over.
    EditProtocol& edits() { return *m_edits; }

    /// True while assistive technology is active.
    bool isSpoken() const { return m_spoken; }

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QByteArray fromMimeData(const QMimeData* source, bool& rectangular) const override;

private:
    void accessibilityActiveChanged(bool active) override;
    std::string keepable(const std::string& text) const;

    const CodePage* m_codePage = nullptr;
    std::unique_ptr<EditProtocol> m_edits;
    bool m_spoken;
};

} // namespace kitwright
