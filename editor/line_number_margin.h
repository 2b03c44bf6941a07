// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

class QsciScintilla;

namespace kitwright {

/// Line numbers at the left of an editor, as wide as the largest of them needs.
class LineNumberMargin final : public QObject {
    Q_OBJECT

public:
    /// Lives as long as the editor, which owns it.
    explicit LineNumberMargin(QsciScintilla& editor);

private:
    void fit();

    QsciScintilla& m_editor;
    qsizetype m_digits = 0;
};

} // namespace kitwright
