// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/rich_text_box.h"

#include <bitset>
#include <optional>
#include <span>
#include <vector>

class QsciScintilla;

namespace kitwright {

/// Gives each text style that a document uses a style number of the control. Number 0 is plain text. When the
/// numbers run out, those that no character bears any more are given out again.
class StyleNumbers {
public:
    explicit StyleNumbers(QsciScintilla& control);

    /// Defines every style anew in the control's present font.
    void define();

    /// The number for a style. In a text that bears more styles than there are numbers the extra ones are plain.
    unsigned char numberOf(const TextStyle& style) { return numbersOf({&style, 1}).front(); }

    /// As `numberOf` for styles that are about to be used together: none of them is taken for unused.
    std::vector<unsigned char> numbersOf(std::span<const TextStyle> styles);

    /// The style behind a number of the control.
    TextStyle styleOf(unsigned char number) const;

private:
    void defineNumber(std::size_t number);
    /// Numbers that are about to be used; no character bears them yet.
    using Held = std::bitset<256>;

    unsigned char give(const TextStyle& style, const Held& held);
    void freeUnused(const Held& held);

    QsciScintilla& m_control;
    std::vector<std::optional<TextStyle>> m_styles; ///< By number; nothing where the number is free.
};

} // namespace kitwright
