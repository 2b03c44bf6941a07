// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/addon_copy.h"

#include "services/addon_files.h"
#include "services/paths.h"
#include "text/letter_case.h"

#include <algorithm>
#include <utility>

namespace kitwright {

namespace {

Failure copyOne(FileSystem& files, std::string_view CurrentFile, const FileCopy& copy)
{
    if (CurrentFile.empty())
        return copy.from + ": the add-on has no folder yet";
    if (!isPlainFileName(copy.fileName))
        return copy.from + ": no file name to copy it to";
    const std::string to = FolderOf(CurrentFile) + copy.fileName;
    const Outcome<std::string> place = placeBeside(files, std::string(CurrentFile), to);
    if (!place)
        return copy.from + ": " + place.reason();
    for (const std::string& name : {copy.fileName, FileNameOf(*place)}) {
        if (equalIgnoringCase(name, FileNameOf(CurrentFile)) || equalIgnoringCase(name, "config.cpp")
            || equalIgnoringCase(name, "Stringtable.csv"))
            return copy.from + ": would replace the add-on's own " + name;
    }
    return files.copyFile(copy.from, to);
}

} // namespace

std::vector<FileCopy> CopyPlan::copies() const
{
    std::vector<std::pair<std::size_t, std::string>> ordered;
    ordered.reserve(m_places.size());
    for (const auto& [from, place] : m_places)
        ordered.emplace_back(place, from);
    std::sort(ordered.begin(), ordered.end());

    std::vector<FileCopy> result;
    result.reserve(ordered.size());
    for (const auto& [place, from] : ordered)
        result.push_back({from, FileNameOf(from)});
    return result;
}

std::vector<std::string> copyIntoAddon(FileSystem& files, std::string_view CurrentFile,
                                       const std::vector<FileCopy>& copies)
{
    std::vector<std::string> failures;
    for (const FileCopy& copy : copies) {
        if (Failure failure = copyOne(files, CurrentFile, copy))
            failures.push_back(*failure);
    }
    return failures;
}

} // namespace kitwright
