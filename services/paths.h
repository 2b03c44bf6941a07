// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace kitwright {

/// The part behind the last separator; empty when the path has none or ends with one. A backslash separates
/// everywhere, '/' wherever it is the platform's own separator.
std::string FileNameOf(std::string_view path);

/// The part up to and including the last separator; the whole path when it has none.
std::string FolderOf(std::string_view path);

/// True when `name` can name a file inside a folder: not empty, not "." or "..", without separators and control
/// characters. Whatever fails this is never written to.
bool isPlainFileName(std::string_view name);

} // namespace kitwright
