// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFrame>

class QLineEdit;
class QsciScintilla;

namespace kitwright {

/// Search in an editor: Ctrl+F opens a small bar in its upper right corner, Enter and F3 go to the next place,
/// Shift+F3 to the one before, Esc closes the bar. Letter case is ignored and the search goes round at the end.
class FindBar final : public QFrame {
    Q_OBJECT

public:
    /// Lives as long as the editor, which owns it.
    explicit FindBar(QsciScintilla& editor);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void open();
    void close();
    void find(bool forward);
    void findFromStart();
    void place();

    QsciScintilla& m_editor;
    QLineEdit* m_text;
};

} // namespace kitwright
