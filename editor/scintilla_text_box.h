// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "editor/style_numbers.h"
#include "text/code_page.h"
#include "text/rich_text_box.h"

#include <QAccessible>
#include <QObject>

namespace kitwright {

class ScintillaControl;

/// The rich-text box on the real control. Whatever enters the text (typed, pasted, dropped, inserted by the program)
/// is cut to the code page and gets CR LF line ends; positions are bytes of the UTF-8 text.
class ScintillaTextBox final : public QObject, public RichTextBox, private QAccessible::ActivationObserver {
    Q_OBJECT

public:
    /// The control must outlive the box.
    ScintillaTextBox(ScintillaControl& control, const CodePage& codePage);
    ~ScintillaTextBox() override;

    Position length() const override;
    std::string_view text() const override;
    char at(Position position) const override;
    std::string_view range(Position start, Position length) const override;
    void setText(std::string_view text) override;
    void loadText(std::string_view text) override;
    Position caret() const override;
    Selection selection() const override;
    void select(Position start, Position length) override;
    void replaceSelection(std::string_view text) override;
    void replaceRange(Position start, Position length, std::string_view text) override;
    TextStyle styleAt(Position position) const override;
    void styleRange(Position start, Position length, const TextStyle& style) override;
    void styleAll(const StyleMap& styles) override;
    void beginUndoStep() override;
    void endUndoStep() override;
    void setObserver(TextObserver* observer) override { m_observer = observer; }

    void undo();
    void redo();

private:
    void putCaret(Position caret, Position anchor);
    void replaceTarget(std::string_view text);
    void hearChanges();
    void accessibilityActiveChanged(bool active) override;
    void modified(int position, int kind, int length);
    void noteChange(bool undoRedo);
    void tellWidget();
    void announce(const PendingEdit& edit);

    /// Lets the observer answer the changes since the last time.
    void settle();

    Selection cut(Position start, Position length) const;
    void keepStyles(std::string& numbers, std::string_view entries, Position start) const;

    ScintillaControl& m_control;
    const CodePage& m_codePage;
    StyleNumbers m_styles;
    TextObserver* m_observer = nullptr;
    bool m_changed = false;   ///< A change waits for the observer's answer.
    bool m_undoRedo = false;  ///< The waiting change came from the undo history.
    bool m_answering = false; ///< The observer is at work; its edits are no changes to answer.
    bool m_joined = false;    ///< An undo step is open that the answer shall belong to.
    bool m_settleQueued = false;
    int m_lines = 1; ///< Lines that the widget last told of.
};

} // namespace kitwright
