// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QTimer>

class QsciScintilla;

namespace kitwright {

/// Marks the brace beside the caret and its partner. The partner is searched in slices between events, so that a
/// caret move costs the same in a document of any length.
class BraceMatcher final : public QObject {
    Q_OBJECT

public:
    /// Lives as long as the editor, which owns it.
    explicit BraceMatcher(QsciScintilla& editor);

private:
    void start();
    void searchOn();
    void mark(long partner);
    bool takeBraceAt(long position);

    QsciScintilla& m_editor;
    QTimer m_next;
    long m_brace = -1;   ///< Position of the brace beside the caret, or -1.
    long m_position = 0; ///< Where the search has got to.
    int m_step = 1;      ///< 1 forwards, -1 backwards.
    int m_depth = 0;
    char m_own = 0;
    char m_partner = 0;
};

} // namespace kitwright
