// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <string_view>

namespace kitwright {

/// Replaces a file's content without a second file beside it, for folders that take no new one. Room on the disk is
/// claimed before the first byte of the old content is touched, and what a failed write has done is undone; only a
/// crash in the middle can tear the file. Returns an error text, empty on success.
QString writeInPlace(const QString& path, std::string_view bytes);

} // namespace kitwright
