// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/context.h"
#include "stringtable/string_table.h"

#include <functional>
#include <string>
#include <utility>

namespace kitwright {

/// What happens to the table by way of its file.
enum class TableChange {
    Opened, ///< Another document's table has taken the place of the former one's.
    Saving, ///< The table is about to be saved.
    Saved,  ///< It was; a file that stood there may have brought keys, languages and texts.
};

/// The add-on's stringtable and the Stringtable.csv that it is kept in. It knows what the file of the open document
/// held when it was last read or written, so that no record that someone else put into a file is ever written over.
class TableStore {
public:
    /// The context must outlive the store.
    explicit TableStore(Context& context) : m_context(context) {}

    StringTable& table() { return m_table; }

    /// Has a window told of every change; an empty function ends it.
    void watch(std::function<void(TableChange)> watcher) { m_watcher = std::move(watcher); }

    /// Takes the program's own languages from their list file. No file there is no failure.
    Failure loadLanguages();

    /// A document at `configPath` was opened: what belongs to the former one's file leaves the table, and the
    /// Stringtable.csv beside the document is read. Keys that stand in no file stay. No file there is no failure.
    Failure open(const std::string& configPath);

    /// Writes the ticked keys to the Stringtable.csv at `path`, beside the open document. A file there that was not
    /// read yet, or that changed since, is taken in first; one that cannot be read, that is the document itself, or
    /// that a link leads to from elsewhere, is left as it is, which is a failure. A file that already holds just this
    /// is not written anew.
    Failure WriteStringtable(const std::string& path);

private:
    Failure read(const std::string& folder);
    Failure write(const std::string& path);
    std::string existingName(const std::string& path, Failure& failure) const;
    Outcome<std::string> textOf(const std::string& path) const;
    Failure takeIn(const std::string& path, const std::string& text);

    Context& m_context;
    StringTable m_table;
    std::function<void(TableChange)> m_watcher;
    std::string m_path;  ///< The file that the table stands for; empty: none.
    std::string m_known; ///< What it held when it was last read or written.
};

} // namespace kitwright
