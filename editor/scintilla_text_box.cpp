// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/scintilla_text_box.h"

#include "editor/edit_protocol.h"
#include "editor/scintilla_control.h"
#include "text/text_files.h"

#include <algorithm>
#include <array>

namespace kitwright {

namespace {

using Sci = QsciScintillaBase;

unsigned long wide(Position position)
{
    return static_cast<unsigned long>(position);
}

} // namespace

ScintillaTextBox::ScintillaTextBox(ScintillaControl& control, const CodePage& codePage)
    : m_control(control),
      m_edits(control.edits()),
      m_codePage(codePage),
      m_styles(control)
{
    m_control.setCodePage(codePage);
    m_styles.define();
}

ScintillaTextBox::~ScintillaTextBox()
{
    m_edits.setObserver(nullptr);
}

void ScintillaTextBox::setObserver(TextObserver* observer)
{
    m_edits.setObserver(observer);
}

Position ScintillaTextBox::length() const
{
    return static_cast<Position>(m_control.SendScintilla(Sci::SCI_GETLENGTH));
}

std::string_view ScintillaTextBox::text() const
{
    const auto* characters =
        static_cast<const char*>(m_control.SendScintillaPtrResult(Sci::SCI_GETCHARACTERPOINTER));
    return {characters, length()};
}

char ScintillaTextBox::at(Position position) const
{
    return static_cast<char>(m_control.SendScintilla(Sci::SCI_GETCHARAT, wide(position)));
}

std::string_view ScintillaTextBox::range(Position start, Position length) const
{
    const Selection part = cut(start, length);
    if (part.length == 0)
        return {};
    // The message gives the pointer as a number. NOLINTNEXTLINE(performance-no-int-to-ptr)
    const auto* characters = reinterpret_cast<const char*>(
        m_control.SendScintilla(Sci::SCI_GETRANGEPOINTER, wide(part.start), static_cast<long>(part.length)));
    return {characters, part.length};
}

void ScintillaTextBox::setText(std::string_view text)
{
    {
        const UndoStep step(*this);
        m_control.SendScintilla(Sci::SCI_TARGETWHOLEDOCUMENT);
        replaceTarget(text);
        select(0, 0);
    }
    m_edits.settle();
}

void ScintillaTextBox::loadText(std::string_view text)
{
    m_edits.withoutNotice([&] {
        m_control.SendScintilla(Sci::SCI_SETUNDOCOLLECTION, 0UL);
        m_control.SendScintilla(Sci::SCI_CLEARALL);
        // With no room to spare the control would make its room anew, and twice as large, when the text comes.
        constexpr std::size_t roomToSpare = 1 << 16;
        m_control.SendScintilla(Sci::SCI_ALLOCATE, text.size() + roomToSpare);
        m_control.SendScintilla(Sci::SCI_APPENDTEXT, text.size(), text.data());
        m_control.SendScintilla(Sci::SCI_SETUNDOCOLLECTION, 1UL);
        m_control.SendScintilla(Sci::SCI_EMPTYUNDOBUFFER);
    });
    m_control.setCursorPosition(0, 0);
    m_edits.tellListeners();
}

Position ScintillaTextBox::caret() const
{
    return static_cast<Position>(m_control.SendScintilla(Sci::SCI_GETCURRENTPOS));
}

Selection ScintillaTextBox::selection() const
{
    const auto start = static_cast<Position>(m_control.SendScintilla(Sci::SCI_GETSELECTIONSTART));
    const auto end = static_cast<Position>(m_control.SendScintilla(Sci::SCI_GETSELECTIONEND));
    return {start, end - start};
}

void ScintillaTextBox::select(Position start, Position length)
{
    const Selection part = cut(start, length);
    putCaret(part.start + part.length, part.start);
}

void ScintillaTextBox::putCaret(Position caret, Position anchor)
{
    // A rectangle that the author selected would come back with the next edit, wherever its corners lie by then.
    m_control.SendScintilla(Sci::SCI_CLEARSELECTIONS);
    m_control.SendScintilla(Sci::SCI_SETSELECTION, wide(caret), static_cast<long>(anchor));
}

void ScintillaTextBox::replaceSelection(std::string_view text)
{
    {
        const UndoStep step(*this);
        m_control.SendScintilla(Sci::SCI_TARGETFROMSELECTION);
        replaceTarget(text);
        const auto end = static_cast<Position>(m_control.SendScintilla(Sci::SCI_GETTARGETEND));
        select(end, 0);
    }
    m_edits.settle();
}

void ScintillaTextBox::replaceRange(Position start, Position length, std::string_view text)
{
    const Selection part = cut(start, length);
    const Position oldCaret = caret();
    const auto oldAnchor = static_cast<Position>(m_control.SendScintilla(Sci::SCI_GETANCHOR));
    {
        const UndoStep step(*this);
        m_control.SendScintilla(Sci::SCI_SETTARGETRANGE, wide(part.start),
                                static_cast<long>(part.start + part.length));
        replaceTarget(text);
    }
    const auto end = static_cast<Position>(m_control.SendScintilla(Sci::SCI_GETTARGETEND));
    const auto moved = [&](Position position) {
        if (position <= part.start)
            return position;
        if (position >= part.start + part.length)
            return position - part.length - part.start + end;
        return std::min(position, end);
    };
    putCaret(moved(oldCaret), moved(oldAnchor));
    m_edits.settle();
}

/// Puts a text in the place of the control's target, as far as the code page holds it.
void ScintillaTextBox::replaceTarget(std::string_view text)
{
    std::string kept;
    if (!m_codePage.holds(text) || !hasOnlyCrLf(text)) {
        kept = withCrLf(m_codePage.keepable(text));
        text = kept;
    }
    m_edits.expect(QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())));
    m_control.SendScintilla(Sci::SCI_REPLACETARGET, text.size(), text.data());
    m_edits.expect({});
}

void ScintillaTextBox::respell(std::span<const Respelling> words)
{
    const Position oldCaret = caret();
    const auto oldAnchor = static_cast<Position>(m_control.SendScintilla(Sci::SCI_GETANCHOR));
    m_edits.withoutNotice([&] {
        const UndoStep step(*this);
        for (const auto& [start, spelling] : words) {
            const long style = m_control.SendScintilla(Sci::SCI_GETSTYLEAT, wide(start));
            const auto end = static_cast<long>(start + spelling.size());
            m_control.SendScintilla(Sci::SCI_SETTARGETRANGE, wide(start), end);
            m_control.SendScintilla(Sci::SCI_REPLACETARGET, spelling.size(), spelling.data());
            if (style == 0) // As all new text.
                continue;
            m_control.SendScintilla(Sci::SCI_STARTSTYLING, wide(start));
            m_control.SendScintilla(Sci::SCI_SETSTYLING, spelling.size(), style);
        }
    });
    putCaret(oldCaret, oldAnchor);
    m_edits.noteChange(ChangeOrigin::Edit);
    m_edits.settle();
}

TextStyle ScintillaTextBox::styleAt(Position position) const
{
    const long number = m_control.SendScintilla(Sci::SCI_GETSTYLEAT, wide(position));
    return m_styles.styleOf(static_cast<unsigned char>(number));
}

void ScintillaTextBox::styleRange(Position start, Position length, const TextStyle& style)
{
    const Selection part = cut(start, length);
    m_control.SendScintilla(Sci::SCI_STARTSTYLING, wide(part.start));
    m_control.SendScintilla(Sci::SCI_SETSTYLING, wide(part.length), long{m_styles.numberOf(style)});
}

void ScintillaTextBox::applyStyles(Position start, const StyleMap& styles)
{
    const std::string& entries = styles.entries;
    const std::vector<unsigned char> given = m_styles.numbersOf(styles.palette);
    std::string numbers(entries.size(), '\0');
    // Style by style: the compiler takes many bytes at once in such a loop, and none in one that looks up each byte.
    for (std::size_t style = 0; style < given.size(); ++style) {
        const auto entry = static_cast<char>(style);
        const auto number = static_cast<char>(given[style]);
        std::transform(entries.begin(), entries.end(), numbers.begin(), numbers.begin(),
                       [=](char wanted, char present) { return wanted == entry ? number : present; });
    }
    for (Position i = entries.find(StyleMap::keep); i < entries.size(); i = entries.find(StyleMap::keep, i + 1))
        numbers[i] = static_cast<char>(m_control.SendScintilla(Sci::SCI_GETSTYLEAT, wide(start + i)));
    m_control.SendScintilla(Sci::SCI_STARTSTYLING, wide(start));
    m_control.SendScintilla(Sci::SCI_SETSTYLINGEX, numbers.size(), numbers.data());
}

void ScintillaTextBox::beginUndoStep()
{
    m_control.SendScintilla(Sci::SCI_BEGINUNDOACTION);
}

void ScintillaTextBox::endUndoStep()
{
    m_control.SendScintilla(Sci::SCI_ENDUNDOACTION);
}

void ScintillaTextBox::undo()
{
    m_control.SendScintilla(Sci::SCI_UNDO);
    m_edits.settle();
}

void ScintillaTextBox::redo()
{
    m_control.SendScintilla(Sci::SCI_REDO);
    m_edits.settle();
}

Selection ScintillaTextBox::cut(Position start, Position length) const
{
    const Position end = this->length();
    start = std::min(start, end);
    return {start, std::min(length, end - start)};
}

} // namespace kitwright
