// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pack/folder_contents.h"

#include "pack/archive_format.h"
#include "pack/archive_names.h"
#include "pack/reasons.h"
#include "text/letter_case.h"

#include <algorithm>
#include <array>
#include <optional>

namespace kitwright {

namespace {

bool isOfVersionControl(const std::string& upperName)
{
    constexpr std::array<std::string_view, 11> names = {
        ".GIT", ".GITIGNORE", ".GITATTRIBUTES", ".GITMODULES", ".GITKEEP", ".SVN",
        ".HG",  ".HGIGNORE",  ".BZR",           "CVS",         "_DARCS",
    };
    return std::find(names.begin(), names.end(), upperName) != names.end();
}

bool isTemporary(const std::string& upperName)
{
    return upperName.ends_with('~') || upperName.ends_with(".BAK") || upperName.ends_with(".TMP")
        || upperName.starts_with(".#");
}

/// Walks a folder and those below it.
class FolderReader {
public:
    FolderReader(const FileStreams& streams, const CodePage& codePage, const std::string& archive,
                 const IgnorePatterns& ignored)
        : m_streams(streams),
          m_codePage(codePage),
          m_archive(archive),
          m_ignored(ignored)
    {
    }

    /// Reads a folder; `name` is its name as of an entry with a backslash at its end, empty for the first one.
    Failure read(const std::string& path, const std::string& name)
    {
        Outcome<FolderListing> listing = m_streams.list(path);
        if (!listing)
            return listing.reason();
        if (listing->entries.empty() && !name.empty())
            leaveOut(name, LeftOutBecause::IsEmpty);
        m_around.push_back(listing->realPath);
        for (const FolderEntry& entry : listing->entries) {
            if (const Failure failure = readEntry(path, name, entry))
                return failure;
        }
        m_around.pop_back();
        return {};
    }

    FolderContents contents;

private:
    Failure readEntry(const std::string& folder, const std::string& folderName, const FolderEntry& entry)
    {
        const bool isFolder = entry.kind == EntryKind::Folder;
        const std::string path = folder + '/' + entry.name;
        const std::string name = folderName + entry.name + (isFolder ? "\\" : "");
        if (const auto why = ruledOut(folderName, entry, listedPath(entry))) {
            leaveOut(name, *why);
            return {};
        }
        if (!m_codePage.holds(entry.name))
            return because(path, why::lacksCharacters);
        if (entry.name.find('\\') != std::string::npos)
            return because(path, why::hasSeparator);
        if (const char* fault = nameFault(folderName + entry.name))
            return because(path, fault);
        if (isFolder)
            return read(path, name);
        return addFile(path, name, entry.state);
    }

    Failure addFile(const std::string& path, const std::string& name, const FileState& state)
    {
        if (state.size > largestSize)
            return because(path, why::isTooLarge);
        if (contents.files.size() == mostEntries)
            return because(m_around.front(), why::hasTooMany);
        std::string encoded = m_codePage.encode(name);
        if (encoded.size() > longestName)
            return because(path, why::isTooLong);
        contents.files.push_back({name, std::move(encoded), path, state});
        return {};
    }

    void leaveOut(const std::string& name, LeftOutBecause why) { contents.leftOut.push_back({name, why}); }

    /// Where an entry of the present folder really lies.
    std::string listedPath(const FolderEntry& entry) const
    {
        return entry.isLink ? entry.realPath : m_around.back() + '/' + entry.name;
    }

    std::optional<LeftOutBecause> ruledOut(const std::string& folderName, const FolderEntry& entry,
                                           const std::string& realPath) const
    {
        using Why = LeftOutBecause;
        const std::string upperName = upperCased(entry.name);
        const bool isFolder = entry.kind == EntryKind::Folder;
        if (!isFolder && realPath == m_archive)
            return Why::IsTheArchive;
        if (isOfVersionControl(upperName))
            return Why::IsOfVersionControl;
        if (isTemporary(upperName))
            return Why::IsTemporary;
        if (entry.isHidden)
            return Why::IsHidden;
        if (!isFolder && upperName.ends_with(".PBO"))
            return Why::IsAnArchive;
        if (folderName.empty() && equalIgnoringCase(entry.name, prefixFile))
            return Why::IsThePrefix;
        std::string relative = folderName + entry.name;
        std::replace(relative.begin(), relative.end(), '\\', '/');
        if (m_ignored.leaveOut(relative, isFolder))
            return Why::IsIgnored;
        return unpackable(entry, realPath);
    }

    /// Of links and of what is no file.
    std::optional<LeftOutBecause> unpackable(const FolderEntry& entry, const std::string& realPath) const
    {
        using Why = LeftOutBecause;
        if (entry.kind == EntryKind::Nothing)
            return Why::LeadsNowhere;
        if (entry.isLink && std::find(m_around.begin(), m_around.end(), realPath) != m_around.end())
            return Why::LeadsBack;
        if (entry.isLink && !realPath.starts_with(withSeparator(m_around.front())))
            return Why::LeadsOut;
        return entry.kind == EntryKind::Other ? std::optional(Why::IsNoFile) : std::nullopt;
    }

    static std::string withSeparator(const std::string& folder)
    {
        return folder.ends_with('/') ? folder : folder + '/';
    }

    const FileStreams& m_streams;
    const CodePage& m_codePage;
    const std::string& m_archive;
    const IgnorePatterns& m_ignored;
    std::vector<std::string> m_around; ///< Where the folders that are being read really lie, the first one first.
};

/// Sorts the files without regard to case, and finds names that stand in each other's way.
Failure sortFiles(std::vector<SourceFile>& files)
{
    NameSet names;
    std::vector<std::pair<std::string, SourceFile*>> order;
    for (SourceFile& file : files) {
        if (const char* fault = names.add(file.name))
            return because(file.path, fault);
        order.emplace_back(foldedName(file.name), &file);
    }
    std::sort(order.begin(), order.end());
    std::vector<SourceFile> sorted;
    sorted.reserve(files.size());
    for (const auto& [key, file] : order)
        sorted.push_back(std::move(*file));
    files = std::move(sorted);
    return {};
}

} // namespace

Outcome<FolderContents> readFolder(const FileStreams& streams, const CodePage& codePage, const std::string& folder,
                                   const std::string& archive, const IgnorePatterns& ignored)
{
    using Contents = Outcome<FolderContents>;
    FolderReader reader(streams, codePage, archive, ignored);
    if (const Failure failure = reader.read(folder, {}))
        return Contents::failed(*failure);
    if (const Failure failure = sortFiles(reader.contents.files))
        return Contents::failed(*failure);
    std::sort(reader.contents.leftOut.begin(), reader.contents.leftOut.end(),
              [](const LeftOut& left, const LeftOut& right) { return left.name < right.name; });
    return std::move(reader.contents);
}

const char* textOf(LeftOutBecause why)
{
    switch (why) {
    case LeftOutBecause::IsTheArchive:
        return QT_TRANSLATE_NOOP("pack", "the archive itself");
    case LeftOutBecause::IsAnArchive:
        return QT_TRANSLATE_NOOP("pack", "another archive");
    case LeftOutBecause::IsHidden:
        return QT_TRANSLATE_NOOP("pack", "hidden");
    case LeftOutBecause::IsOfVersionControl:
        return QT_TRANSLATE_NOOP("pack", "version control");
    case LeftOutBecause::IsTemporary:
        return QT_TRANSLATE_NOOP("pack", "a backup or temporary file");
    case LeftOutBecause::IsThePrefix:
        return QT_TRANSLATE_NOOP("pack", "holds the prefix");
    case LeftOutBecause::IsIgnored:
        return QT_TRANSLATE_NOOP("pack", "matches a pattern");
    case LeftOutBecause::LeadsOut:
        return QT_TRANSLATE_NOOP("pack", "a link out of the folder");
    case LeftOutBecause::LeadsBack:
        return QT_TRANSLATE_NOOP("pack", "a link to a folder around it");
    case LeftOutBecause::LeadsNowhere:
        return QT_TRANSLATE_NOOP("pack", "a link that leads nowhere");
    case LeftOutBecause::IsNoFile:
        return QT_TRANSLATE_NOOP("pack", "not a plain file");
    case LeftOutBecause::IsEmpty:
        return QT_TRANSLATE_NOOP("pack", "an empty folder");
    }
    return "";
}

} // namespace kitwright
