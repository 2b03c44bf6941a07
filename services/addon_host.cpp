// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/addon_host.h"

#include "services/class_declarations.h"

namespace kitwright {

void DeclareBaseClasses(AddonHost& host, std::string_view className)
{
    const std::string block = baseClassBlock(host.classes(), className);
    if (block.empty())
        return;
    RichTextBox& editor = host.configedit();
    editor.replaceRange(editor.length(), 0, block);
    host.Uprav2();
}

} // namespace kitwright
