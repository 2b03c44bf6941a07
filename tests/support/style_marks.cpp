// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/style_marks.h"

#include "app/colouring.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace kitwright::testing {

namespace {

constexpr char plain = ' ';

char letterOf(const TextStyle& style, const EditorSettings& settings)
{
    const std::pair<std::optional<TextStyle>, char> letters[] = {
        {TextStyle{}, plain},
        {commentStyle(settings), 'K'},
        {oldStyle, 'O'},
        {keywordStyle(KeywordClass::ConfigCommand, settings), 'C'},
        {keywordStyle(KeywordClass::CLanguageWord, settings), 'L'},
        {keywordStyle(KeywordClass::ClassName, settings), 'N'}};
    const auto is = [&](const auto& known) { return known.first == style; };
    const auto* found = std::find_if(std::begin(letters), std::end(letters), is);
    return found == std::end(letters) ? '?' : found->second;
}

std::string render(const RichTextBox& box, Position from, Position caret, const EditorSettings& settings)
{
    std::string result;
    char open = plain;
    for (Position i = from; i <= box.length(); ++i) {
        const char letter = i < box.length() ? letterOf(box.styleAt(i), settings) : plain;
        if (i == caret)
            result += '|';
        if (letter != open && open != plain)
            result += '>';
        if (letter != open && letter != plain)
            result += {'<', letter, ':'};
        open = letter;
        if (i < box.length())
            result += box.at(i);
    }
    return result;
}

} // namespace

std::string marked(const RichTextBox& box, Position from, const EditorSettings& settings)
{
    return render(box, from, box.caret(), settings);
}

std::string markedText(const RichTextBox& box)
{
    return render(box, 0, std::numeric_limits<Position>::max(), distinctStyles());
}

} // namespace kitwright::testing
