// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/line_number_margin.h"

#include <Qsci/qsciscintilla.h>

#include <algorithm>

namespace kitwright {

namespace {

constexpr int margin = 0;
constexpr qsizetype fewestDigits = 3;

} // namespace

LineNumberMargin::LineNumberMargin(QsciScintilla& editor) : QObject(&editor), m_editor(editor)
{
    m_editor.setMarginType(margin, QsciScintilla::NumberMargin);
    m_editor.setMarginsForegroundColor(QColor(0x7A, 0x86, 0x91));
    m_editor.setMarginsBackgroundColor(QColor(0xF4, 0xF5, 0xF7));
    connect(&m_editor, &QsciScintilla::linesChanged, this, &LineNumberMargin::fit);
    connect(&m_editor, &QsciScintillaBase::SCN_ZOOM, this, [this] {
        m_digits = 0;
        fit();
    });
    fit();
}

void LineNumberMargin::fit()
{
    const qsizetype digits = std::max(fewestDigits, QString::number(m_editor.lines()).size());
    if (digits == m_digits)
        return;
    m_digits = digits;
    m_editor.setMarginWidth(margin, QString(digits + 1, QLatin1Char('9')));
}

} // namespace kitwright
