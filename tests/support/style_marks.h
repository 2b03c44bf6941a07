// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/sample_keywords.h"
#include "text/rich_text_box.h"

#include <string>

namespace kitwright::testing {

/// A style that no setting has: what text looked like before the program coloured it.
inline constexpr TextStyle oldStyle{0x123456, true, true};

/// A box's text from a position on, each range that is not plain in marks: <C:config command>, <L:word of the C
/// language>, <N:class name>, <K:comment>, <O:old style>, <?:any other>. The caret is a "|".
std::string marked(const RichTextBox& box, Position from = 0, const EditorSettings& settings = distinctStyles());

/// As `marked`, without the caret.
std::string markedText(const RichTextBox& box);

} // namespace kitwright::testing
