// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/brace_matcher.h"

#include <Qsci/qsciscintilla.h>

#include <algorithm>
#include <string_view>

namespace kitwright {

namespace {

using Sci = QsciScintillaBase;

constexpr std::string_view opening = "({[";
constexpr std::string_view closing = ")}]";
constexpr long sliceLength = 1 << 17;

} // namespace

BraceMatcher::BraceMatcher(QsciScintilla& editor) : QObject(&editor), m_editor(editor)
{
    m_editor.SendScintilla(Sci::SCI_STYLESETFORE, Sci::STYLE_BRACELIGHT, 0x8A3C00L);
    m_editor.SendScintilla(Sci::SCI_STYLESETBACK, Sci::STYLE_BRACELIGHT, 0xF5E3C8L);
    m_editor.SendScintilla(Sci::SCI_STYLESETFORE, Sci::STYLE_BRACEBAD, 0x2020C0L);
    m_editor.SendScintilla(Sci::SCI_STYLESETBACK, Sci::STYLE_BRACEBAD, 0xDDDDFFL);

    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &BraceMatcher::searchOn);
    connect(&m_editor, &Sci::SCN_UPDATEUI, this, [this](int updated) {
        if (updated & (Sci::SC_UPDATE_CONTENT | Sci::SC_UPDATE_SELECTION))
            start();
    });
}

void BraceMatcher::start()
{
    m_next.stop();
    const long caret = m_editor.SendScintilla(Sci::SCI_GETCURRENTPOS);
    if (!takeBraceAt(caret) && !(caret > 0 && takeBraceAt(caret - 1))) {
        if (m_brace >= 0)
            m_editor.SendScintilla(Sci::SCI_BRACEHIGHLIGHT, ~0UL, -1L);
        m_brace = -1;
        return;
    }
    m_depth = 0;
    m_position = m_brace;
    searchOn();
}

/// Makes the character at a position the brace whose partner is searched; false when it is none.
bool BraceMatcher::takeBraceAt(long position)
{
    const auto character =
        static_cast<char>(m_editor.SendScintilla(Sci::SCI_GETCHARAT, static_cast<unsigned long>(position)));
    if (character == '\0')
        return false;
    const std::size_t opens = opening.find(character);
    const std::size_t closes = closing.find(character);
    if (opens == std::string_view::npos && closes == std::string_view::npos)
        return false;
    m_brace = position;
    m_own = character;
    m_step = opens != std::string_view::npos ? 1 : -1;
    m_partner = opens != std::string_view::npos ? closing[opens] : opening[closes];
    return true;
}

void BraceMatcher::searchOn()
{
    const long length = m_editor.SendScintilla(Sci::SCI_GETLENGTH);
    if (m_position >= length) {
        mark(-1);
        return;
    }
    const long left = m_step > 0 ? length - m_position : m_position + 1;
    const long slice = std::min(left, sliceLength);
    const long lowest = m_step > 0 ? m_position : m_position + 1 - slice;
    // The message gives the pointer as a number. NOLINTNEXTLINE(performance-no-int-to-ptr)
    const auto* characters = reinterpret_cast<const char*>(
        m_editor.SendScintilla(Sci::SCI_GETRANGEPOINTER, static_cast<unsigned long>(lowest), slice));
    for (const long end = m_position + m_step * slice; m_position != end; m_position += m_step) {
        const char character = characters[m_position - lowest];
        if (character == m_own)
            ++m_depth;
        else if (character == m_partner && --m_depth == 0) {
            mark(m_position);
            return;
        }
    }
    if (slice < left)
        m_next.start(0);
    else
        mark(-1);
}

void BraceMatcher::mark(long partner)
{
    if (partner >= 0)
        m_editor.SendScintilla(Sci::SCI_BRACEHIGHLIGHT, static_cast<unsigned long>(m_brace), partner);
    else
        m_editor.SendScintilla(Sci::SCI_BRACEBADLIGHT, static_cast<unsigned long>(m_brace));
}

} // namespace kitwright
