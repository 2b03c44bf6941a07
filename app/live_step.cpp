// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/live_step.h"

#include <algorithm>

namespace kitwright {

namespace {

/// Bytes of a word that are looked at to either side of the caret. No keyword comes near it, and a keystroke in an
/// endless line costs no more than any other.
constexpr Position farthest = 1 << 14;

bool isDelimiter(char character)
{
    return character == ' ' || character == '\r' || character == '\n';
}

/// The step for a comment character, or for "//".
LiveStep comment(Position start, Position length)
{
    return {LiveStep::Kind::Comment, start, length, true};
}

LiveStep word(const TextView& text, Position start)
{
    Position end = start;
    const Position last = std::min(text.length(), start + 2 * farthest);
    while (end < last && !isDelimiter(text.at(end)))
        ++end;
    return {LiveStep::Kind::Word, start, end - start, false};
}

/// Start of the last character that ends at `end`, which may take several bytes.
Position characterStart(const TextView& text, Position end)
{
    Position start = end - 1;
    while (start > 0 && (static_cast<unsigned char>(text.at(start)) & 0xC0) == 0x80)
        --start;
    return start;
}

} // namespace

LiveStep liveStep(const TextView& text, Position caret, bool inComment)
{
    LiveStep nothing;
    nothing.inComment = inComment;
    if (caret == 0 || text.length() == 0)
        return nothing;

    const Position typed = characterStart(text, caret);
    const bool first = typed == 0;
    const char before = first ? '\0' : text.at(typed - 1);
    const bool spaceBefore = first || before == ' ';
    if (text.at(caret) == ' ' && spaceBefore)
        return nothing;

    if (text.at(typed) == '\n' || before == '\n' || first)
        inComment = false;
    if (inComment)
        return comment(typed, caret - typed);
    if (spaceBefore)
        return word(text, caret);

    const Position nearest = caret > farthest ? caret - farthest : 0;
    for (Position i = caret; i > nearest; --i) {
        const char character = text.at(i - 1);
        if (isDelimiter(character))
            return word(text, i);
        if (character == '/' && i < caret && text.at(i) == '/')
            return comment(i - 1, 2);
    }
    nothing.inComment = inComment;
    return nothing;
}

} // namespace kitwright
