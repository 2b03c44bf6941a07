// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packer/packer_request.h"

#include "services/paths.h"
#include "text/letter_case.h"

namespace kitwright {

namespace {

std::string folderAround(const std::string& document)
{
    if (FileNameOf(document).empty())
        return ".";
    std::string folder = FolderOf(document);
    if (folder.size() > 1)
        folder.pop_back();
    return folder;
}

} // namespace

std::optional<PackerRequest> readRequest(const FileSystem& files, std::string_view argument)
{
    constexpr std::string_view orderToPack = ",2";
    argument = trimmedSpaces(argument);
    if (!argument.ends_with(orderToPack))
        return std::nullopt;
    argument.remove_suffix(orderToPack.size());

    std::optional<PackerRequest> possible;
    for (std::size_t comma = argument.find(','); comma != std::string_view::npos;
         comma = argument.find(',', comma + 1)) {
        const std::string document(argument.substr(0, comma));
        const PackerRequest request{document, folderAround(document), std::string(argument.substr(comma + 1))};
        if (request.archive.empty() || !files.fileExists(document))
            continue;
        if (files.realPath(request.archive))
            return request;
        if (!possible)
            possible = request;
    }
    return possible;
}

} // namespace kitwright
