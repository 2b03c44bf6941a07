// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/addon_reader.h"

#include "text/utf8.h"

namespace kitwright {

namespace {

/// True for valid UTF-8 that is not ASCII alone.
bool isUtf8BeyondAscii(std::string_view bytes)
{
    bool isBeyond = false;
    for (std::size_t i = 0; i < bytes.size();) {
        const Utf8Character character = utf8At(bytes, i);
        if (!character.valid)
            return false;
        isBeyond = isBeyond || character.length > 1;
        i += character.length;
    }
    return isBeyond;
}

std::string_view lastPart(std::string_view path)
{
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    const std::size_t separator = path.rfind('/');
    return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

} // namespace

std::string configText(std::string_view bytes, const CodePage& codePage)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (bytes.starts_with(mark))
        return std::string(bytes.substr(mark.size()));
    return isUtf8BeyondAscii(bytes) ? std::string(bytes) : codePage.decode(bytes);
}

AddonFolder readAddonFolder(const FileSystem& files, const CodePage& codePage, const std::string& config)
{
    const Outcome<std::string> top = files.realFolder(config);
    if (!top)
        return AddonFolder();
    AddonFolder addon{std::string(lastPart(*top))};
    struct Folder {
        std::string path; ///< Below the config's, with '/' at its end unless it is that one.
        std::size_t depth = 0;
    };
    std::vector<Folder> open = {{}};
    std::size_t count = 0;
    while (!open.empty() && count < mostAddonFiles) {
        const Folder folder = open.back();
        open.pop_back();
        const std::string place = *top + "/" + folder.path;
        if (const auto names = files.listFiles(place)) {
            for (const std::string& name : *names) {
                if (++count > mostAddonFiles)
                    break;
                addon.addFile(folder.path + name);
                if (!sameName(name, "stringtable.csv"))
                    continue;
                if (const auto bytes = files.readBytes(place + name))
                    addon.addKeys(configText(*bytes, codePage));
            }
        }
        const auto folders = files.listFolders(place);
        for (std::size_t i = 0; folders && folder.depth < deepestAddonFolder && i < folders->size(); ++i)
            open.push_back({folder.path + (*folders)[i] + "/", folder.depth + 1});
    }
    return addon;
}

} // namespace kitwright
