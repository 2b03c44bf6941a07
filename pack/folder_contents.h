// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "pack/ignore_patterns.h"
#include "platform/file_streams.h"
#include "text/code_page.h"

#include <string>
#include <vector>

namespace kitwright {

/// A file that goes into an archive.
struct SourceFile {
    std::string name;    ///< As the archive has it: UTF-8, relative, with backslashes.
    std::string encoded; ///< The name in the code page.
    std::string path;    ///< Where it is on the disk.
    FileState state;
};

/// Why a file or folder does not go into an archive.
enum class LeftOutBecause {
    IsTheArchive,
    IsAnArchive,
    IsHidden,
    IsOfVersionControl,
    IsTemporary,
    IsThePrefix,
    IsIgnored,
    LeadsOut,  ///< A link out of the folder.
    LeadsBack, ///< A link to a folder that it is in.
    LeadsNowhere,
    IsNoFile, ///< Neither file nor folder.
    IsEmpty,  ///< A folder in which there is nothing.
};

struct LeftOut {
    std::string name; ///< As that of a `SourceFile`; of a folder with a backslash at its end.
    LeftOutBecause why = LeftOutBecause::IsHidden;
};

struct FolderContents {
    std::vector<SourceFile> files; ///< In the order of the archive.
    std::vector<LeftOut> leftOut;  ///< In alphabetical order.
};

/// The file in an add-on's folder that holds the prefix of its archive.
inline constexpr std::string_view prefixFile = "$PBOPREFIX$";

/// The file in an add-on's folder that says what else is left out.
inline constexpr std::string_view ignoreFile = ".pboignore";

/// What there is to pack in a folder and below. `archive` is the archive as it really lies, or will lie. Failure, which
/// names the file, when a folder cannot be read, when a file has a name that an archive cannot hold or is too large, or
/// when two names stand in each other's way.
Outcome<FolderContents> readFolder(const FileStreams& streams, const CodePage& codePage, const std::string& folder,
                                   const std::string& archive, const IgnorePatterns& ignored);

/// In English, such as "hidden".
const char* textOf(LeftOutBecause why);

} // namespace kitwright
