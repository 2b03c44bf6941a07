// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/browser_clicks.h"

#include "text/utf8.h"

namespace kitwright {

namespace {

/// Bytes of the character behind a position: a line break is one character, and so is a letter of two bytes.
Position characterLength(const RichTextBox& editor, Position position)
{
    constexpr Position longest = 4;
    const std::string_view text = editor.range(position, longest);
    if (text.empty())
        return 0;
    return text.starts_with("\r\n") ? 2 : utf8At(text, 0).length;
}

} // namespace

void commandClicked(AddonHost& host, const TreeNode& node)
{
    if (node.isHeading())
        return;
    RichTextBox& editor = host.configedit();
    const Position start = editor.selection().start;
    editor.select(start, characterLength(editor, start));
    editor.replaceSelection(node.text + " ");
}

void classClicked(AddonHost& host, const TreeNode& node, bool declareFromRoot)
{
    if (declareFromRoot) {
        // The colouring after it may respell other words; one undo takes back all of it.
        const DocumentChange change(host);
        DeclareBaseClasses(host, node.text);
    } else {
        commandClicked(host, node);
    }
    host.configedit().select(host.configedit().length(), 0);
}

} // namespace kitwright
