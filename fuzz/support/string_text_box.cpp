// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/support/string_text_box.h"

#include <algorithm>
#include <stdexcept>

namespace kitwright::fuzzing {

namespace {

auto offset(Position position)
{
    return static_cast<std::ptrdiff_t>(position);
}

} // namespace

std::string_view StringTextBox::range(Position start, Position length) const
{
    const Selection part = cut(start, length);
    return text().substr(part.start, part.length);
}

void StringTextBox::setText(std::string_view text)
{
    edit(0, m_text.size(), text);
    m_selection = {};
}

void StringTextBox::loadText(std::string_view text)
{
    m_text = text;
    m_styles.assign(m_text.size(), TextStyle{});
    m_selection = {};
    m_history.clear();
}

void StringTextBox::replaceSelection(std::string_view text)
{
    const Selection selected = m_selection;
    m_selection = {selected.start + text.size(), 0};
    edit(selected.start, selected.length, text);
}

void StringTextBox::replaceRange(Position start, Position length, std::string_view text)
{
    const Selection part = cut(start, length);
    const auto moved = [&](Position position) {
        if (position >= part.start + part.length && part.length + text.size() > 0)
            return part.length == 0 && position == part.start ? position : position - part.length + text.size();
        return std::min(position, std::max(part.start, std::min(position, part.start + text.size())));
    };
    const Position end = moved(m_selection.start + m_selection.length);
    const Position begin = moved(m_selection.start);
    m_selection = {begin, end - begin};
    edit(part.start, part.length, text);
}

TextStyle StringTextBox::styleAt(Position position) const
{
    return position < m_styles.size() ? m_styles[position] : TextStyle{};
}

void StringTextBox::styleRange(Position start, Position length, const TextStyle& style)
{
    const Selection part = cut(start, length);
    std::fill_n(m_styles.begin() + offset(part.start), part.length, style);
}

void StringTextBox::styleAll(const StyleMap& styles)
{
    if (styles.entries.size() != m_text.size())
        throw std::logic_error("a style map must be as long as the text");
    for (Position i = 0; i < m_text.size(); ++i) {
        if (styles.entries[i] != StyleMap::keep)
            m_styles[i] = styles.palette.at(static_cast<unsigned char>(styles.entries[i]));
    }
}

void StringTextBox::beginUndoStep()
{
    if (m_openSteps++ == 0)
        m_stepRecorded = false;
}

void StringTextBox::endUndoStep()
{
    --m_openSteps;
}

void StringTextBox::undo()
{
    if (m_history.empty())
        return;
    m_text = m_history.back();
    m_history.pop_back();
    m_styles.assign(m_text.size(), TextStyle{});
    m_selection = {std::min(m_selection.start, m_text.size()), 0};
    if (m_observer)
        tell(ChangeOrigin::UndoRedo);
}

void StringTextBox::type(std::string_view text)
{
    for (std::size_t i = 0; i < text.size();) {
        // A line break is one key, a character beyond ASCII one key as well.
        std::size_t next = i + 1;
        if (text.substr(i, 2) == "\r\n")
            next = i + 2;
        while (next < text.size() && (static_cast<unsigned char>(text[next]) & 0xC0) == 0x80)
            ++next;
        replaceSelection(text.substr(i, next - i));
        i = next;
    }
}

Selection StringTextBox::cut(Position start, Position length) const
{
    start = std::min(start, m_text.size());
    return {start, std::min(length, m_text.size() - start)};
}

void StringTextBox::edit(Position start, Position length, std::string_view text)
{
    if (length == 0 && text.empty())
        return;
    const bool heard = m_observer && !m_answering;
    const bool joined = heard && m_observer->willEditAfter({start, length, text});
    if (joined)
        beginUndoStep();
    if (m_openSteps == 0 || !m_stepRecorded) {
        m_history.push_back(m_text);
        m_stepRecorded = true;
    }
    m_text.replace(start, length, text);
    m_styles.erase(m_styles.begin() + offset(start), m_styles.begin() + offset(start + length));
    m_styles.insert(m_styles.begin() + offset(start), text.size(), TextStyle{});
    if (heard)
        tell(ChangeOrigin::Edit);
    if (joined)
        endUndoStep();
}

/// Its answer's own edits are not heard of.
void StringTextBox::tell(ChangeOrigin origin)
{
    m_answering = true;
    m_observer->textChanged(origin);
    m_answering = false;
}

} // namespace kitwright::fuzzing
