// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/live_colouring.h"

#include "app/colouring.h"
#include "app/live_step.h"

namespace kitwright {

LiveColouring::LiveColouring(RichTextBox& box, const KeywordList& keywords, const EditorSettings& settings)
    : m_box(box),
      m_keywords(keywords),
      m_settings(settings)
{
    m_box.setObserver(this);
}

LiveColouring::~LiveColouring()
{
    m_box.setObserver(nullptr);
}

bool LiveColouring::willEditAfter(const PendingEdit& edit)
{
    if (isOff())
        return false;
    const TextView text(m_box, edit);
    const LiveStep step = liveStep(text, edit.start + edit.inserted.size(), InComment);
    if (step.kind != LiveStep::Kind::Word)
        return false;
    std::string word;
    for (Position i = 0; i < step.length; ++i)
        word += text.at(step.start + i);
    return m_keywords.match(word).isRespelt;
}

void LiveColouring::textChanged(ChangeOrigin origin)
{
    if (isOff())
        return;
    const LiveStep step = liveStep(TextView(m_box), m_box.caret(), InComment);
    InComment = step.inComment;
    if (step.kind == LiveStep::Kind::Comment) {
        m_box.styleRange(step.start, step.length, commentStyle(m_settings));
    } else if (step.kind == LiveStep::Kind::Word && step.length > 0) {
        const std::string_view word = m_box.range(step.start, step.length);
        const auto [keyword, isRespelt] = m_keywords.match(word);
        if (keyword < 0) {
            m_box.styleRange(step.start, step.length, TextStyle{});
            return;
        }
        // What undo brings back keeps its spelling: an edit here would cut off the redo history.
        if (origin == ChangeOrigin::Edit && isRespelt)
            m_box.respell({{{step.start, m_keywords.textAt(keyword)}}});
        if (const auto style = keywordStyle(m_keywords.classAt(keyword), m_settings))
            m_box.styleRange(step.start, step.length, *style);
    }
}

} // namespace kitwright
