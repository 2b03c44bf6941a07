// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/table_store.h"

#include "services/addon_files.h"
#include "services/paths.h"
#include "text/letter_case.h"

#include <algorithm>

namespace kitwright {

Failure TableStore::open(const std::string& folder)
{
    m_table.release();
    m_path.clear();
    m_known.clear();
    Failure failure;
    const std::string path = existingName(folder + "Stringtable.csv", failure);
    if (!m_files.fileExists(path))
        return failure;
    const Outcome<std::string> text = read(path);
    if (!text)
        return text.reason();
    if (Failure tooLarge = takeIn(path, *text))
        return tooLarge;
    return failure;
}

Failure TableStore::save(const std::string& path, const std::string& CurrentFile)
{
    Failure unseen;
    const std::string target = existingName(path, unseen);
    if (const Outcome<std::string> place = placeBeside(m_files, CurrentFile, target); !place)
        return place.reason();
    const bool exists = m_files.fileExists(target);
    if (exists) {
        const Outcome<std::string> text = read(target);
        if (!text)
            return text.reason() + "; the file is left as it is";
        if (target != m_path || *text != m_known) {
            if (const Failure failure = takeIn(target, *text))
                return *failure + "; the file is left as it is";
        }
    }
    const std::string wanted = m_table.text();
    if (!exists || wanted != m_known) {
        if (Failure failure = m_texts.write(target, wanted))
            return failure;
    }
    m_path = target;
    m_known = m_texts.codePage().keepable(wanted);
    m_table.written();
    return unseen;
}

/// The path, or that of a file beside it whose name differs in letter case only: authors bring their folders from
/// file systems that take both for the same file. Where the folder cannot be looked into, which is a failure, the
/// path itself.
std::string TableStore::existingName(const std::string& path, Failure& failure) const
{
    const std::string folder = FolderOf(path);
    const std::string name = FileNameOf(path);
    const auto isName = [&](const std::string& other) { return equalIgnoringCase(other, name); };
    for (const std::string& known : {path, m_path}) {
        if (FolderOf(known) == folder && isName(FileNameOf(known)) && m_files.fileExists(known))
            return known;
    }
    const Outcome<std::vector<std::string>> names = m_files.listFiles(folder);
    if (!names) {
        failure = names.reason();
        return path;
    }
    const auto found = std::find_if(names->begin(), names->end(), isName);
    return found == names->end() ? path : folder + *found;
}

Outcome<std::string> TableStore::read(const std::string& path) const
{
    Outcome<std::string> text = m_texts.read(path);
    if (text && text->find('\0') != std::string::npos)
        return Outcome<std::string>::failed(path + ": not a text in the code page");
    return text;
}

Failure TableStore::takeIn(const std::string& path, const std::string& text)
{
    const TableFile file = parseTable(text);
    if (file.tooLarge || !m_table.hasRoomFor(file))
        return path + ": more columns or texts than a stringtable can have";
    if (path == m_path)
        m_table.takeInAgain(file, parseTable(m_known));
    else
        m_table.takeIn(file);
    m_path = path;
    m_known = text;
    return {};
}

} // namespace kitwright
