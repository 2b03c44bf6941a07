// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "pack/folder_contents.h"
#include "pack/progress.h"
#include "platform/file_streams.h"
#include "platform/file_system.h"
#include "platform/sha1.h"
#include "text/code_page.h"

#include <optional>
#include <string>
#include <vector>

namespace kitwright {

/// What archives are read and written with.
struct PackTools {
    FileSystem& files;
    FileStreams& streams;
    const CodePage& codePage;
    Sha1& sha1;
};

/// What is to be packed, and how.
struct PackOrder {
    std::string folder;
    std::string archive;               ///< Path of the file that is made.
    std::optional<std::string> prefix; ///< Written as the property "prefix"; an empty one is that of `prefixFile`.
    bool withHash = false;             ///< The SHA-1 ends the archive.
    std::vector<std::string> exclusions; ///< Patterns beside those of `ignoreFile`.
};

struct PackResult {
    std::string archive; ///< Where it really lies.
    std::size_t fileCount = 0;
    std::uint64_t archiveSize = 0;
    std::vector<LeftOut> leftOut;
};

/// Packs a folder with those below it. The archive is read again and compared with the files before it is put in place.
/// A failure, which names what is at fault, leaves the archive that was there, or none.
Outcome<PackResult> packFolder(const PackTools& tools, const PackOrder& order, const Progress& progress);

} // namespace kitwright
