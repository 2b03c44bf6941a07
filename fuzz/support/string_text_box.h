// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/rich_text_box.h"

#include <string>
#include <vector>

namespace kitwright::fuzzing {

/// A rich-text box over a plain string: what logic is tested and fuzzed with. Undo is kept as whole texts.
class StringTextBox final : public RichTextBox {
public:
    StringTextBox() = default;
    explicit StringTextBox(std::string_view text) { loadText(text); }

    Position length() const override { return m_text.size(); }
    std::string_view text() const override { return m_text; }
    char at(Position position) const override { return position < m_text.size() ? m_text[position] : '\0'; }
    std::string_view range(Position start, Position length) const override;
    void setText(std::string_view text) override;
    void loadText(std::string_view text) override;
    Position caret() const override { return m_selection.start + m_selection.length; }
    Selection selection() const override { return m_selection; }
    void select(Position start, Position length) override { m_selection = cut(start, length); }
    void replaceSelection(std::string_view text) override;
    void replaceRange(Position start, Position length, std::string_view text) override;
    TextStyle styleAt(Position position) const override;
    void styleRange(Position start, Position length, const TextStyle& style) override;
    void styleAll(const StyleMap& styles) override;
    void beginUndoStep() override;
    void endUndoStep() override;
    void setObserver(TextObserver* observer) override { m_observer = observer; }

    void undo();
    int undoSteps() const { return static_cast<int>(m_history.size()); }

    /// Types a text as the keyboard does: character by character at the caret.
    void type(std::string_view text);

private:
    Selection cut(Position start, Position length) const;
    void edit(Position start, Position length, std::string_view text);
    void tell(ChangeOrigin origin);

    std::string m_text;
    std::vector<TextStyle> m_styles;
    Selection m_selection;
    std::vector<std::string> m_history; ///< The texts before each step, oldest first.
    int m_openSteps = 0;
    bool m_stepRecorded = false;
    bool m_answering = false;
    TextObserver* m_observer = nullptr;
};

} // namespace kitwright::fuzzing
