// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/addon_host.h"

namespace kitwright {

/// A click on an entry of the command tree: its text and a space replace the character behind the caret, a line
/// break counting as one. Headings insert nothing.
void commandClicked(AddonHost& host, const TreeNode& node);

/// A click on an entry of the class tree: as for a command or, with `declareFromRoot`, the class is declared with its
/// ancestors. The caret ends at the end of the document in any case.
void classClicked(AddonHost& host, const TreeNode& node, bool declareFromRoot);

} // namespace kitwright
