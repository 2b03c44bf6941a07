// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/outcome.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// Bytes of the largest file that is read: more than any add-on's text or picture has, and a memory's worth less.
inline constexpr std::size_t largestFile = 256'000'000;

/// The one way to the disk. Paths are UTF-8; '/' and '\' both separate folders. Nothing here throws, and no
/// failure leaves a half-written file behind.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// True for a file that can be seen, links followed; false for a folder or anything else.
    virtual bool fileExists(const std::string& path) const = 0;

    /// The file that a write to the path reaches: its folders and itself as they really are, links followed. It need
    /// not exist. Failure when its folder does not, or when links go round in a circle.
    virtual Outcome<std::string> realPath(const std::string& path) const = 0;

    /// The folder, as it really is, in which a file or link lies. Failure when there is none.
    virtual Outcome<std::string> realFolder(const std::string& path) const = 0;

    /// The whole content of a regular file, byte for byte. One of more than `largestFile` is a failure.
    virtual Outcome<std::string> readBytes(const std::string& path) const = 0;

    /// Creates or replaces the file, whole or not at all. A link stays a link, access modes stay as they were.
    virtual Failure writeBytes(const std::string& path, std::string_view bytes) = 0;

    /// Copies a regular file over `to`, whole or not at all; a file copied onto itself stays as it is.
    virtual Failure copyFile(const std::string& from, const std::string& to) = 0;

    /// The names, without folder, of the files in a folder, in the order in which the system lists them.
    virtual Outcome<std::vector<std::string>> listFiles(const std::string& folder) const = 0;

    /// The names of the folders in a folder that are not hidden, in alphabetical order.
    virtual Outcome<std::vector<std::string>> listFolders(const std::string& folder) const = 0;
};

} // namespace kitwright
