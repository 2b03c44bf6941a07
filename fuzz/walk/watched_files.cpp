// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "watched_files.h"

#include "authors_files.h"
#include "services/paths.h"
#include "text/letter_case.h"
#include "text/windows_1250.h"

#include <algorithm>

namespace kitwright::walking {

namespace {

constexpr std::string_view shippedFolder = "/program/Bfdata/";

/// One spelling for each path, as the files in memory take them.
std::string plain(std::string path)
{
    std::replace(path.begin(), path.end(), '\\', '/');
    const auto repeated = [](char first, char second) { return first == '/' && second == '/'; };
    path.erase(std::unique(path.begin(), path.end(), repeated), path.end());
    return path;
}

bool isDocument(const std::string& path)
{
    return upperCased(path).ends_with(".CPP");
}

/// A document may be given this name, but then it is taken for a table when another one beside it is saved.
bool isStringtable(const std::string& path)
{
    return equalIgnoringCase(FileNameOf(path), "Stringtable.csv");
}

} // namespace

WatchedFiles::WatchedFiles(Record& record, Surroundings& surroundings)
    : m_record(record),
      m_surroundings(surroundings)
{
    m_files.files = authorsFiles();
    for (const auto& [path, bytes] : m_files.files) {
        if (path.starts_with(shippedFolder))
            m_shipped[path] = bytes;
        else if (isDocument(path))
            m_documents[path] = bytes;
    }
}

void WatchedFiles::allow(const std::string& path)
{
    m_allowed.insert(plain(path));
    // The program may propose the name that the game wants.
    m_allowed.insert(plain(FolderOf(path) + "Config.cpp"));
}

void WatchedFiles::checkDisk()
{
    for (const auto* kept : {&m_shipped, &m_documents}) {
        for (const auto& [path, bytes] : *kept) {
            const auto found = m_files.files.find(path);
            if (found == m_files.files.end() || found->second != bytes)
                fail("a file is not as it was left", path);
        }
    }
}

void WatchedFiles::removeLargeTables()
{
    std::erase_if(m_files.files, [](const auto& file) {
        return file.second.size() > largeTable / 4 && isStringtable(file.first);
    });
    m_hasLargeTable = false;
}

Failure WatchedFiles::writeBytes(const std::string& path, std::string_view bytes)
{
    const std::string target = plain(path);
    judge(target, bytes);
    m_record.mix(target);
    m_record.mix(bytes);
    const bool refused = refuses(target);
    if (target == settingsPath())
        m_hasSettings = !refused;
    m_record.count(refused ? "writes refused" : "writes");
    if (refused)
        return path + ": cannot be written";
    if (isStringtable(target) && bytes.size() > largeTable)
        m_hasLargeTable = true;
    if (target == plain(m_surroundings.state().CurrentFile)) {
        if (!isStringtable(target))
            m_documents[target] = bytes;
        m_record.count("saves of the document");
    }
    return m_files.writeBytes(target, bytes);
}

Failure WatchedFiles::copyFile(const std::string& from, const std::string& to)
{
    judgeCopy(plain(from), plain(to));
    if (refuses(plain(to)))
        return to + ": cannot be written";
    m_record.count("files copied into the add-on");
    return m_files.copyFile(from, to);
}

Outcome<std::vector<std::string>> WatchedFiles::listFiles(const std::string& folder) const
{
    return m_files.listFiles(folder);
}

Outcome<std::vector<std::string>> WatchedFiles::listFolders(const std::string& folder) const
{
    if (folder.starts_with("/locked"))
        return Outcome<std::vector<std::string>>::failed(folder + ": may not be read");
    return m_files.listFolders(folder);
}

/// As a disk does: folders, odd paths, and places without leave to write.
bool WatchedFiles::refuses(const std::string& path) const
{
    const auto inside = m_files.files.lower_bound(path + '/');
    const bool isFolder = inside != m_files.files.end() && inside->first.starts_with(path + '/');
    return m_full || isFolder || path.empty() || path.ends_with('/') || path.find('\0') != std::string::npos
        || path.starts_with("/read-only/");
}

void WatchedFiles::judge(const std::string& path, std::string_view bytes)
{
    const std::string current = plain(m_surroundings.state().CurrentFile);
    if (path == settingsPath())
        judgeSettings(bytes);
    else if (path == current)
        judgeDocument(path, bytes);
    else if (FolderOf(path) != FolderOf(current) || !isStringtable(path))
        fail("nobody asked for this file to be written", path);
    else
        m_record.count("saves of the stringtable");
}

void WatchedFiles::judgeDocument(const std::string& path, std::string_view bytes)
{
    const CodePage& codePage = windows1250();
    const std::string_view document = m_surroundings.document();
    if (!m_allowed.contains(path))
        fail("no dialog answered this path", path);
    const bool isWhole = m_surroundings.isComposing() || codePage.decode(bytes) == document;
    if (codePage.encode(document) != bytes || !isWhole)
        fail("the file does not hold the document", path);
}

void WatchedFiles::judgeSettings(std::string_view bytes)
{
    EditorSettings read;
    const CodePage& codePage = windows1250();
    decodeSettings(bytes, codePage, read);
    EditorSettings settings = m_surroundings.state().Settings;
    settings.PboFolder = codePage.keepable(settings.PboFolder);
    if (read != settings)
        fail("the settings file does not hold the settings", settingsPath());
}

void WatchedFiles::judgeCopy(const std::string& from, const std::string& to)
{
    const std::string current = plain(m_surroundings.state().CurrentFile);
    if (FolderOf(to) != FolderOf(current) || FileNameOf(to) != FileNameOf(from))
        fail("a copy goes astray: " + from, to);
    if (to == current || m_documents.contains(to) || isStringtable(to))
        fail("a copy replaces what the author wrote: " + from, to);
}

void WatchedFiles::fail(const std::string& what, const std::string& path)
{
    m_record.fail(what + ": [" + path + "]");
}

} // namespace kitwright::walking
