// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/surroundings.h"
#include "platform/file_system.h"
#include "text/code_page.h"

#include <string>
#include <string_view>

namespace kitwright {

/// The text of a config's bytes as UTF-8, line ends as they stand. The bytes are in the code page, unless they begin
/// with a UTF-8 byte order mark, or are valid UTF-8 with letters beyond ASCII; the mark is left out.
std::string configText(std::string_view bytes, const CodePage& codePage);

/// As many files of a folder, with those in it, as are taken, and levels of folders.
inline constexpr std::size_t mostAddonFiles = 20'000;
inline constexpr std::size_t deepestAddonFolder = 20;

/// The files around the config at a path, and the keys of the string tables among them. A folder that cannot be
/// listed has none.
AddonFolder readAddonFolder(const FileSystem& files, const CodePage& codePage, const std::string& config);

} // namespace kitwright
