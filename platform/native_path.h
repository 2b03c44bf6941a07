// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/outcome.h"

#include <QString>

#include <string>

namespace kitwright {

/// The path as the system takes it; empty for one with a NUL, which no file can bear. A backslash separates folders,
/// unless a file or folder bears the name as it stands.
QString nativePath(const std::string& path);

/// "path: error".
std::string failureAt(const QString& path, const QString& error);

/// See `FileSystem::realFolder`.
Outcome<QString> folderOf(const QString& path);

/// See `FileSystem::realPath`.
Outcome<QString> fileBehind(const QString& path);

} // namespace kitwright
