// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/keyword_list.h"
#include "services/settings.h"
#include "text/rich_text_box.h"

namespace kitwright {

/// Colours the word around the character just typed, after every change of the document's text. It reads the
/// characters around the caret only.
class LiveColouring final : public TextObserver {
public:
    /// Watches the box from now on; box, list and settings must outlive it.
    LiveColouring(RichTextBox& box, const KeywordList& keywords, const EditorSettings& settings);
    ~LiveColouring() override;
    LiveColouring(const LiveColouring&) = delete;
    LiveColouring& operator=(const LiveColouring&) = delete;

    /// While one of these exists, changes are not answered: until start-up has ended, and while the program itself
    /// rewrites the document. They may nest.
    class Pause {
    public:
        explicit Pause(LiveColouring& live) : m_live(live) { ++m_live.m_pauses; }
        ~Pause() { --m_live.m_pauses; }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        LiveColouring& m_live;
    };

    bool ColouringEnabled() const { return m_pauses == 0; }

    /// Foretells whether the word at the end of the edit will be respelled: right for every edit that leaves the caret
    /// there, as typing does. After any other, a respelling is an undo step of its own.
    bool willEditAfter(const PendingEdit& edit) override;
    void textChanged(ChangeOrigin origin) override;

private:
    RichTextBox& m_box;
    const KeywordList& m_keywords;
    const EditorSettings& m_settings;

    bool isOff() const { return m_settings.KeywordColouringOff || !ColouringEnabled(); }

    int m_pauses = 0;

    /// The line being typed into is taken to be inside a comment.
    bool InComment = false;
};

} // namespace kitwright
