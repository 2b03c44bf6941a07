// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "stringtable/string_table.h"
#include "text/text_files.h"

#include <string>

namespace kitwright {

/// The stringtable's way to the disk. It keeps what the file of the open document held when it was last read or
/// written, so that no record that someone else put into a file is ever written over.
class TableStore {
public:
    TableStore(FileSystem& files, TextFiles& texts, StringTable& table)
        : m_files(files),
          m_texts(texts),
          m_table(table)
    {
    }

    /// Another document was opened: what belongs to the former one's file leaves the table, and the file in
    /// `folder` (with its closing separator) is read. No file there is no failure.
    Failure open(const std::string& folder);

    /// Writes the table to `path`, beside the document at `CurrentFile`. A file there that was not read yet, or that
    /// changed since, is taken in first; one that cannot be read, that is the document itself, or that a link leads
    /// to from elsewhere, is left as it is, which is a failure. A file that already holds just this is not written
    /// anew.
    Failure save(const std::string& path, const std::string& CurrentFile);

private:
    std::string existingName(const std::string& path, Failure& failure) const;
    Outcome<std::string> read(const std::string& path) const;
    Failure takeIn(const std::string& path, const std::string& text);

    FileSystem& m_files;
    TextFiles& m_texts;
    StringTable& m_table;
    std::string m_path;  ///< The file that the table stands for; empty: none.
    std::string m_known; ///< What it held when it was last read or written.
};

} // namespace kitwright
