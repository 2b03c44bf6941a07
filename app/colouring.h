// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/keyword_list.h"
#include "services/settings.h"
#include "text/rich_text_box.h"

#include <optional>
#include <string>
#include <vector>

namespace kitwright {

/// The style of a keyword; nothing for a class number that has none.
std::optional<TextStyle> keywordStyle(KeywordClass keywordClass, const EditorSettings& settings);

TextStyle commentStyle(const EditorSettings& settings);

/// What a full pass makes of a text.
struct FullPass {
    StyleMap styles;
    std::vector<Respelling> respellings; ///< Of its keywords, in order; they show texts of the keyword list.
};

/// Styles every word that a space or a line break ends, and every comment. A word that is glued to the front of a
/// comment or ends the text is not looked up and keeps its style. The blanks between words, which show none, are plain.
FullPass colourText(std::string_view text, const KeywordList& keywords, const EditorSettings& settings);

/// Gives the keywords of a box the spelling of the list, as one undo step; styles, caret and selection stay.
void respellBox(RichTextBox& box, const KeywordList& keywords);

/// Full pass over a box: styles and respells the whole text. Caret and selection stay; the respellings are one undo
/// step, styles are none.
void colourBox(RichTextBox& box, const KeywordList& keywords, const EditorSettings& settings);

/// Has a box take a text that was just opened, with what a full pass makes of it. Nothing of it can be undone.
void loadColoured(RichTextBox& box, std::string text, const KeywordList& keywords, const EditorSettings& settings);

} // namespace kitwright
