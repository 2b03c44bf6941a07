// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "editor/style_numbers.h"
#include "text/code_page.h"
#include "text/rich_text_box.h"

namespace kitwright {

class EditProtocol;
class ScintillaControl;

/// The rich-text box on the real control. Whatever enters the text (typed, pasted, dropped, inserted by the program)
/// is cut to the code page and gets CR LF line ends; positions are bytes of the UTF-8 text.
class ScintillaTextBox final : public RichTextBox {
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
    void respell(std::span<const Respelling> words) override;
    TextStyle styleAt(Position position) const override;
    void styleRange(Position start, Position length, const TextStyle& style) override;
    void applyStyles(Position start, const StyleMap& styles) override;
    void beginUndoStep() override;
    void endUndoStep() override;
    void setObserver(TextObserver* observer) override;

    void undo();
    void redo();

private:
    void putCaret(Position caret, Position anchor);
    void replaceTarget(std::string_view text);
    Selection cut(Position start, Position length) const;

    ScintillaControl& m_control;
    EditProtocol& m_edits;
    const CodePage& m_codePage;
    StyleNumbers m_styles;
};

} // namespace kitwright
