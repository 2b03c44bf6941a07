// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/table_store.h"

#include "services/addon_files.h"
#include "services/paths.h"
#include "text/letter_case.h"
#include "text/list_file.h"

#include <algorithm>

namespace kitwright {

Failure TableStore::loadLanguages()
{
    const std::string path = m_context.inProgramFolder("/Bfdata/kitwright/languages.dat");
    if (!m_context.files.fileExists(path))
        return {};
    const Outcome<std::string> text = m_context.texts.read(path);
    if (!text)
        return text.reason();
    constexpr std::size_t mostLanguages = 1'000;
    for (const ListEntry& entry : listEntries(*text, mostLanguages))
        m_table.addLanguage(entry.text);
    return linesLeftOut(path, *text, mostLanguages);
}

Failure TableStore::open(const std::string& configPath)
{
    m_table.release();
    m_path.clear();
    m_known.clear();
    Failure failure = read(FolderOf(configPath));
    if (m_watcher)
        m_watcher(TableChange::Opened);
    return failure;
}

Failure TableStore::read(const std::string& folder)
{
    Failure unseen;
    const std::string path = existingName(folder + "Stringtable.csv", unseen);
    if (!m_context.files.fileExists(path))
        return unseen;
    const Outcome<std::string> text = textOf(path);
    if (!text)
        return text.reason();
    if (Failure tooLarge = takeIn(path, *text))
        return tooLarge;
    return unseen;
}

Failure TableStore::WriteStringtable(const std::string& path)
{
    if (m_watcher)
        m_watcher(TableChange::Saving);
    Failure failure = write(path);
    if (m_watcher)
        m_watcher(TableChange::Saved);
    return failure;
}

Failure TableStore::write(const std::string& path)
{
    Failure unseen;
    const std::string target = existingName(path, unseen);
    if (const Outcome<std::string> place = placeBeside(m_context.files, m_context.state.CurrentFile, target);
        !place)
        return place.reason();
    const bool exists = m_context.files.fileExists(target);
    if (exists) {
        const Outcome<std::string> text = textOf(target);
        if (!text)
            return text.reason() + "; the file is left as it is";
        if (target != m_path || *text != m_known) {
            if (const Failure failure = takeIn(target, *text))
                return *failure + "; the file is left as it is";
        }
    }
    const std::string wanted = m_table.text();
    if (!exists || wanted != m_known) {
        if (Failure failure = m_context.texts.write(target, wanted))
            return failure;
    }
    m_path = target;
    m_known = m_context.texts.codePage().keepable(wanted);
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
        if (FolderOf(known) == folder && isName(FileNameOf(known)) && m_context.files.fileExists(known))
            return known;
    }
    const Outcome<std::vector<std::string>> names = m_context.files.listFiles(folder);
    if (!names) {
        failure = names.reason();
        return path;
    }
    const auto found = std::find_if(names->begin(), names->end(), isName);
    return found == names->end() ? path : folder + *found;
}

Outcome<std::string> TableStore::textOf(const std::string& path) const
{
    Outcome<std::string> text = m_context.texts.read(path);
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
