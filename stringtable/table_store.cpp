// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/table_store.h"

#include "services/letter_case.h"
#include "services/paths.h"

#include <algorithm>

namespace kitwright {

Failure TableStore::open(const std::string& folder)
{
    m_table.release();
    m_path.clear();
    m_known.clear();
    const std::string path = existingName(folder + "Stringtable.csv");
    if (!m_files.fileExists(path))
        return {};
    const Outcome<std::string> text = read(path);
    if (!text)
        return text.reason();
    takeIn(path, *text);
    return {};
}

Failure TableStore::save(const std::string& path)
{
    const std::string target = existingName(path);
    const bool exists = m_files.fileExists(target);
    if (exists) {
        const Outcome<std::string> text = read(target);
        if (!text)
            return text.reason() + "; the file is left as it is";
        if (target != m_path || *text != m_known)
            takeIn(target, *text);
    }
    const std::string wanted = m_table.text();
    if (!exists || wanted != m_known) {
        if (Failure failure = m_texts.write(target, wanted))
            return failure;
    }
    m_path = target;
    m_known = m_texts.codePage().keepable(wanted);
    m_table.written();
    return {};
}

/// The path, or that of a file beside it whose name differs in letter case only: authors bring their folders from
/// file systems that take both for the same file.
std::string TableStore::existingName(const std::string& path) const
{
    const std::string folder = FolderOf(path);
    const Outcome<std::vector<std::string>> names = m_files.listFiles(folder);
    if (!names || m_files.fileExists(path))
        return path;
    const std::string name = FileNameOf(path);
    const auto found = std::find_if(names->begin(), names->end(),
                                    [&](const std::string& other) { return equalIgnoringCase(other, name); });
    return found == names->end() ? path : folder + *found;
}

Outcome<std::string> TableStore::read(const std::string& path) const
{
    Outcome<std::string> text = m_texts.read(path);
    if (text && text->find('\0') != std::string::npos)
        return Outcome<std::string>::failed(path + ": not a text in the code page");
    return text;
}

void TableStore::takeIn(const std::string& path, const std::string& text)
{
    if (path == m_path)
        m_table.takeInAgain(parseTable(text), parseTable(m_known));
    else
        m_table.takeIn(parseTable(text));
    m_path = path;
    m_known = text;
}

} // namespace kitwright
