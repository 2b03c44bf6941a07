// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_system.h"

#include <string>

namespace kitwright {

/// The file that a write to `path` reaches, for what is written beside the document at `CurrentFile` without being
/// asked for by name. Failure when that is the document itself, or lies outside its folder: a link in a folder that
/// came from a stranger may lead anywhere, and so may a document's name with backslashes.
Outcome<std::string> placeBeside(const FileSystem& files, const std::string& CurrentFile, const std::string& path);

} // namespace kitwright
