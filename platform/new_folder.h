// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_streams.h"

class QString;

namespace kitwright {

/// See `FileStreams::createFolder`. The folder grows beside its place, under the place's name and ".unpacking" with a
/// number where that is taken.
Outcome<std::unique_ptr<NewFolder>> newFolderAt(const QString& path);

} // namespace kitwright
