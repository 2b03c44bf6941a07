// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/rich_text_box.h"

namespace kitwright {

/// A box's text as it will be once a pending edit is done.
class TextView {
public:
    explicit TextView(const RichTextBox& box, const PendingEdit& edit = {}) : m_box(box), m_edit(edit) {}

    Position length() const { return m_box.length() - m_edit.removed + m_edit.inserted.size(); }

    /// The byte behind a position, '\0' outside the text.
    char at(Position position) const
    {
        if (position < m_edit.start)
            return m_box.at(position);
        if (position < m_edit.start + m_edit.inserted.size())
            return m_edit.inserted[position - m_edit.start];
        return m_box.at(position - m_edit.inserted.size() + m_edit.removed);
    }

private:
    const RichTextBox& m_box;
    PendingEdit m_edit;
};

/// What one live step does to the text.
struct LiveStep {
    enum class Kind {
        Nothing,
        Comment, ///< The range takes the comment style.
        Word,    ///< The range is a word to look up.
    };

    Kind kind = Kind::Nothing;
    Position start = 0;
    Position length = 0;
    bool inComment = false; ///< The comment flag afterwards.
};

/// Decides what the live step does when the caret stands at `caret` after a change. Positions count from 0.
LiveStep liveStep(const TextView& text, Position caret, bool inComment);

} // namespace kitwright
