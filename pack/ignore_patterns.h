// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// Says which files of a folder are left out, by patterns as in ignore files. A line is a pattern; empty lines and those
/// that start with "#" are none. "*" and "?" stand for any characters and any one, "[a-z]" and "[!a-z]" for one of a
/// set, none of them for a separator; "**" stands for any folders. A pattern with "/" at its start or inside counts from
/// the folder itself, any other one in every folder below, too; one that ends with "/" is for folders. "!" in front
/// takes in again what patterns before have left out. A backslash takes a character's meaning away. Letter case makes no
/// difference.
class IgnorePatterns {
public:
    /// Adds the lines of an ignore file, UTF-8.
    void addLines(std::string_view lines);
    void addLine(std::string_view line);

    /// True when a file or folder is left out. The path is relative to the folder, with "/" between its parts; what is
    /// in a folder that is left out must not be asked for.
    bool leaveOut(std::string_view path, bool isFolder) const;

private:
    struct Pattern {
        std::vector<std::string> parts; ///< Upper case; "**" stands for any number of parts.
        bool isForFolders = false;
        bool takesIn = false;
    };
    std::vector<Pattern> m_patterns;
};

} // namespace kitwright
