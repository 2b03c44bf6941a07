// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_system.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kitwright {

/// A file that goes into the add-on's folder.
struct FileCopy {
    std::string from;     ///< Its path.
    std::string fileName; ///< Its name in the add-on's folder.

    friend bool operator==(const FileCopy&, const FileCopy&) = default;
};

/// Gathers files to copy. A file added again moves to the end: of two files with the same name the one added last
/// stays in the folder, and none is copied twice.
class CopyPlan {
public:
    void add(const std::string& from) { m_places[from] = m_next++; }

    /// The files in the order in which they are to be copied.
    std::vector<FileCopy> copies() const;

private:
    std::unordered_map<std::string, std::size_t> m_places;
    std::size_t m_next = 0;
};

/// Copies files into the folder of the document at `CurrentFile`, over files of the same name, and says in one line
/// each what could not be copied. Nothing is written anywhere else: a name that is no plain file name is refused, and
/// so is every copy while the document has no path. The document itself, a config.cpp beside it and its stringtable
/// are never overwritten.
std::vector<std::string> copyIntoAddon(FileSystem& files, std::string_view CurrentFile,
                                       const std::vector<FileCopy>& copies);

} // namespace kitwright
