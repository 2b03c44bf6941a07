// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/addon_files.h"

#include "text/letter_case.h"

namespace kitwright {

Outcome<std::string> placeBeside(const FileSystem& files, const std::string& CurrentFile, const std::string& path)
{
    using Place = Outcome<std::string>;
    Place place = files.realPath(path);
    if (!place)
        return place;
    const Outcome<std::string> document = files.realPath(CurrentFile);
    if (document && equalIgnoringCase(*place, *document))
        return Place::failed(path + ": the document itself lies there");
    const Outcome<std::string> folder = files.realFolder(CurrentFile);
    if (!folder || !place->starts_with(*folder + (folder->ends_with('/') ? "" : "/")))
        return Place::failed(path + ": leads out of the document's folder");
    return place;
}

} // namespace kitwright
