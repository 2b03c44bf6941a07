// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/patch_list.h"

#include "text/find_text.h"
#include "text/letter_case.h"

#include <optional>

namespace kitwright {

namespace {

/// Reads a box's text in order. A piece at a time is looked at, so that neither the length of the text nor the place
/// of the last edit matters.
class Reader {
public:
    explicit Reader(const RichTextBox& box) : m_box(box) {}

    char at(Position position)
    {
        if (position < m_start || position >= m_start + m_piece.size()) {
            constexpr Position pieceLength = 4096;
            m_start = position;
            m_piece = m_box.range(position, pieceLength);
        }
        return m_piece.empty() ? '\0' : m_piece[position - m_start];
    }

    /// To be called after an edit.
    void forget() { m_piece = {}; }

private:
    const RichTextBox& m_box;
    Position m_start = 0;
    std::string_view m_piece;
};

constexpr std::string_view patchKeyword = "CFGPATCHES";

/// Where the scan starts: at the keyword, or at the start of a text without it.
Position scanStart(const RichTextBox& editor)
{
    constexpr Position pieceLength = 1 << 16;
    const Position length = editor.length();
    for (Position start = 0; start < length; start += pieceLength) {
        const std::string_view piece = editor.range(start, pieceLength + patchKeyword.size() - 1);
        const std::size_t found = findIgnoringCase(piece, patchKeyword);
        if (found != std::string_view::npos)
            return start + found;
    }
    return 0;
}

/// The place behind the brace that opens the list on a later line: only blanks, line ends, "=" and comments may stand
/// between the list's name and it.
std::optional<Position> braceOnLaterLine(const RichTextBox& editor, Position behindName)
{
    constexpr std::string_view between = " \t\r\n=";
    const Position end = editor.length();
    for (Position i = behindName; i < end; ++i) {
        const char character = editor.at(i);
        if (character == '{')
            return i + 1;
        if (character == '/' && editor.at(i + 1) == '/') {
            while (i + 1 < end && editor.at(i + 1) != '\n')
                ++i;
        } else if (between.find(character) == std::string_view::npos) {
            break;
        }
    }
    return std::nullopt;
}

/// True when the list that goes on at `position` holds nothing, whatever blanks and line ends stand in it.
bool isEmptyList(const RichTextBox& editor, Position position)
{
    constexpr std::string_view blanks = " \t\r\n";
    while (position < editor.length() && blanks.find(editor.at(position)) != std::string_view::npos)
        ++position;
    return editor.at(position) == '}';
}

/// Inserts the item into the list whose name stands in the line from `lineStart` to `lineEnd`.
void insertIntoList(RichTextBox& editor, Position lineStart, Position lineEnd, std::size_t nameStart,
                    std::size_t nameLength, std::string_view item)
{
    const std::string_view line = editor.range(lineStart, lineEnd - lineStart);
    const std::size_t brace = line.find('{', nameStart);
    bool empty = false;
    Position place = 0;
    if (brace != std::string_view::npos) {
        place = lineStart + brace + 1;
        empty = editor.at(place) == '}' || editor.at(place + 1) == '}';
    } else {
        const auto found = braceOnLaterLine(editor, lineStart + nameStart + nameLength);
        if (!found)
            return;
        place = *found;
        empty = isEmptyList(editor, place);
    }
    editor.select(place, 0);
    editor.replaceSelection(empty ? std::string(item) : std::string(item) + ",");
}

void addItem(RichTextBox& editor, Position start, const std::string& name, std::string_view item)
{
    long depth = 0;
    bool entered = false;
    const Position end = editor.length();
    Position lineStart = start;
    Reader reader(editor);
    for (Position i = start; i < end; ++i) {
        const char character = reader.at(i);
        if (character == '{') {
            entered = true;
            ++depth;
        }
        if (character == '}' && entered)
            --depth;
        if (depth == 0 && entered)
            return;
        if (character != '\n')
            continue;
        const std::size_t found = findIgnoringCase(editor.range(lineStart, i - lineStart), name);
        if (found != std::string_view::npos) {
            insertIntoList(editor, lineStart, i, found, name.size(), item);
            reader.forget();
        }
        // The scan goes on behind the line feed's old place, although an insertion has moved the text.
        lineStart = i + 1;
    }
}

} // namespace

void AddToPatchList(RichTextBox& editor, std::string_view keyword, std::string_view item)
{
    addItem(editor, scanStart(editor), upperCased(keyword), item);
}

void AddToPatchList(RichTextBox& editor, std::string_view keyword, std::span<const std::string> items)
{
    const Position start = scanStart(editor);
    const std::string name = upperCased(keyword);
    for (const std::string& item : items)
        addItem(editor, start, name, item);
}

} // namespace kitwright
