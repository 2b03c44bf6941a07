// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/scintilla_text_box.h"

#include "editor/scintilla_control.h"
#include "text/text_files.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <array>

namespace kitwright {

namespace {

using Sci = QsciScintillaBase;

/// The changes that the box hears of: all of them are about to happen. Styling is not among them.
constexpr unsigned long heardChanges =
    Sci::SC_MOD_INSERTCHECK | Sci::SC_MOD_BEFOREINSERT | Sci::SC_MOD_BEFOREDELETE;

/// With these the control tells assistive technology what changed, counting characters from the start of the text:
/// a cost that grows with the document, to be paid only where somebody listens.
constexpr unsigned long spokenChanges = Sci::SC_MOD_INSERTTEXT | Sci::SC_MOD_DELETETEXT;

constexpr int undoOrRedo = Sci::SC_PERFORMED_UNDO | Sci::SC_PERFORMED_REDO;

unsigned long wide(Position position)
{
    return static_cast<unsigned long>(position);
}

} // namespace

ScintillaTextBox::ScintillaTextBox(ScintillaControl& control, const CodePage& codePage)
    : m_control(control),
      m_codePage(codePage),
      m_styles(control)
{
    m_control.setCodePage(codePage);
    m_styles.define();
    hearChanges();
    QAccessible::installActivationObserver(this);
    connect(&m_control, &Sci::SCN_MODIFIED, this,
            [this](int position, int kind, const char* /*text*/, int length) { modified(position, kind, length); });
    connect(&m_control, &ScintillaControl::eventHandled, this, &ScintillaTextBox::settle);
}

ScintillaTextBox::~ScintillaTextBox()
{
    QAccessible::removeActivationObserver(this);
}

void ScintillaTextBox::hearChanges()
{
    m_control.SendScintilla(Sci::SCI_SETMODEVENTMASK,
                            QAccessible::isActive() ? heardChanges | spokenChanges : heardChanges);
}

void ScintillaTextBox::accessibilityActiveChanged(bool /*active*/)
{
    hearChanges();
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
    settle();
}

void ScintillaTextBox::loadText(std::string_view text)
{
    // Nothing of the load is answered, checked or kept for undo, so the control takes the text in one copy.
    m_control.SendScintilla(Sci::SCI_SETMODEVENTMASK, 0UL);
    m_control.SendScintilla(Sci::SCI_SETUNDOCOLLECTION, 0UL);
    m_control.SendScintilla(Sci::SCI_CLEARALL);
    // With no room to spare the control would make its room anew, and twice as large, when the text comes.
    constexpr std::size_t roomToSpare = 1 << 16;
    m_control.SendScintilla(Sci::SCI_ALLOCATE, text.size() + roomToSpare);
    m_control.SendScintilla(Sci::SCI_APPENDTEXT, text.size(), text.data());
    m_control.SendScintilla(Sci::SCI_SETUNDOCOLLECTION, 1UL);
    m_control.SendScintilla(Sci::SCI_EMPTYUNDOBUFFER);
    hearChanges();
    m_control.setCursorPosition(0, 0);
    tellWidget();
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
    settle();
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
    settle();
}

/// Puts a text in the place of the control's target, as far as the code page holds it.
void ScintillaTextBox::replaceTarget(std::string_view text)
{
    std::string kept;
    if (!m_codePage.holds(text) || !hasOnlyCrLf(text)) {
        kept = withCrLf(m_codePage.keepable(text));
        text = kept;
    }
    m_control.expectText(std::string(text));
    m_control.SendScintilla(Sci::SCI_REPLACETARGET, text.size(), text.data());
    m_control.expectText({});
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

void ScintillaTextBox::styleAll(const StyleMap& styles)
{
    std::array<char, 256> numberFor{};
    const std::vector<unsigned char> given = m_styles.numbersOf(styles.palette);
    std::copy(given.begin(), given.end(), numberFor.begin());

    // Block by block, so that the bytes are still in the processor's cache when the control reads them.
    constexpr Position blockSize = 1 << 16;
    std::string numbers;
    m_control.SendScintilla(Sci::SCI_STARTSTYLING, 0UL);
    for (Position start = 0; start < styles.entries.size(); start += blockSize) {
        const std::string_view entries = std::string_view(styles.entries).substr(start, blockSize);
        numbers.resize(entries.size());
        std::transform(entries.begin(), entries.end(), numbers.begin(),
                       [&](char entry) { return numberFor[static_cast<unsigned char>(entry)]; });
        keepStyles(numbers, entries, start);
        m_control.SendScintilla(Sci::SCI_SETSTYLINGEX, numbers.size(), numbers.data());
    }
}

/// Puts the present numbers where the map asks to keep them.
void ScintillaTextBox::keepStyles(std::string& numbers, std::string_view entries, Position start) const
{
    for (std::size_t i = entries.find(StyleMap::keep); i != std::string_view::npos;
         i = entries.find(StyleMap::keep, i + 1)) {
        numbers[i] = static_cast<char>(m_control.SendScintilla(Sci::SCI_GETSTYLEAT, wide(start + i)));
    }
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
    settle();
}

void ScintillaTextBox::redo()
{
    m_control.SendScintilla(Sci::SCI_REDO);
    settle();
}

void ScintillaTextBox::modified(int position, int kind, int length)
{
    const auto start = static_cast<Position>(position);
    const auto size = static_cast<std::size_t>(length);
    if (kind & Sci::SC_MOD_INSERTCHECK) {
        const std::string text = m_control.takeExpected(size);
        announce({start, 0, text});
        return;
    }
    if (!(kind & heardChanges))
        return;
    if ((kind & Sci::SC_MOD_BEFOREDELETE) && !(kind & undoOrRedo))
        announce({start, size, {}});
    noteChange((kind & undoOrRedo) != 0);
}

void ScintillaTextBox::noteChange(bool undoRedo)
{
    if (m_answering)
        return;
    m_changed = true;
    m_undoRedo = undoRedo;
    if (m_settleQueued)
        return;
    // An edit that comes neither from an event nor through this box is answered as soon as events run again.
    m_settleQueued = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_settleQueued = false;
            settle();
        },
        Qt::QueuedConnection);
}

/// Opens an undo step around a coming edit when the observer will edit in answer to it.
void ScintillaTextBox::announce(const PendingEdit& edit)
{
    if (!m_observer || m_answering || m_joined || m_control.isComposing())
        return;
    if (m_observer->willEditAfter(edit)) {
        m_control.SendScintilla(Sci::SCI_BEGINUNDOACTION);
        m_joined = true;
    }
}

void ScintillaTextBox::settle()
{
    if (m_answering || m_control.isComposing())
        return;
    if (m_changed && m_observer) {
        const QScopedValueRollback answering(m_answering, true);
        m_observer->textChanged(m_undoRedo ? ChangeOrigin::UndoRedo : ChangeOrigin::Edit);
    }
    if (m_changed)
        tellWidget();
    m_changed = false;
    if (m_joined) {
        m_joined = false;
        m_control.SendScintilla(Sci::SCI_ENDUNDOACTION);
    }
}

/// Sends the widget's own signals, which it leaves out for changes that it does not hear of.
void ScintillaTextBox::tellWidget()
{
    if (QAccessible::isActive() && m_changed)
        return;
    Q_EMIT m_control.textChanged();
    const int lines = m_control.lines();
    if (lines != m_lines)
        Q_EMIT m_control.linesChanged();
    m_lines = lines;
}

Selection ScintillaTextBox::cut(Position start, Position length) const
{
    const Position end = this->length();
    start = std::min(start, end);
    return {start, std::min(length, end - start)};
}

} // namespace kitwright
