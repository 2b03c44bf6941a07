// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/rich_text_box.h"

#include <span>
#include <string>
#include <string_view>

namespace kitwright {

/// Puts `item` at the front of the lists named `keyword` ("weapons[]", in any letter case) inside the document's
/// `CfgPatches` block, with a comma behind it unless the list is empty. Without that keyword the document is
/// scanned from its start to the end of its first brace block. A list whose brace stands on a later line gets the
/// item behind that brace; without any brace it is left alone. The caret ends behind the inserted text.
void AddToPatchList(RichTextBox& editor, std::string_view keyword, std::string_view item);

/// The same for several items, one after the other, so that the last one ends up in front.
void AddToPatchList(RichTextBox& editor, std::string_view keyword, std::span<const std::string> items);

} // namespace kitwright
