// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_system.h"

#include <functional>
#include <map>
#include <set>
#include <string>

namespace kitwright::testing {

/// Files in memory, by path. Both separators are taken as '/', and two in a row as one. A path whose folder has no
/// entry may still be written: folders come with their files.
class MemoryFileSystem final : public FileSystem {
public:
    std::map<std::string, std::string> files;
    std::map<std::string, std::string> links; ///< What stands behind a path, when it is a link.
    std::set<std::string> unwritable;         ///< Paths that refuse to be written.

    /// Comes before each operation, with what is to be written, or nullptr; the operation fails when it gives false.
    std::function<bool(const std::string& path, const std::string_view* written)> before;

    bool fileExists(const std::string& path) const override { return files.contains(at(path)); }

    Outcome<std::string> realPath(const std::string& path) const override { return at(path); }

    Outcome<std::string> realFolder(const std::string& path) const override
    {
        return plain(path).substr(0, plain(path).rfind('/'));
    }

    Outcome<std::string> readBytes(const std::string& path) const override
    {
        if (fails(at(path)))
            return Outcome<std::string>::failed(path + ": not readable");
        const auto found = files.find(at(path));
        return found == files.end() ? Outcome<std::string>::failed(path + ": no such file") : found->second;
    }

    Failure writeBytes(const std::string& path, std::string_view bytes) override
    {
        if (fails(at(path), &bytes) || unwritable.contains(at(path)))
            return path + ": not writable";
        files[at(path)] = std::string(bytes);
        return {};
    }

    Failure copyFile(const std::string& from, const std::string& to) override
    {
        const Outcome<std::string> bytes = readBytes(from);
        return bytes ? writeBytes(to, *bytes) : Failure(bytes.reason());
    }

    Outcome<std::vector<std::string>> listFiles(const std::string& folder) const override
    {
        return entries(folder, false);
    }

    Outcome<std::vector<std::string>> listFolders(const std::string& folder) const override
    {
        return entries(folder, true);
    }

private:
    bool fails(const std::string& path, const std::string_view* written = nullptr) const
    {
        return before && !before(path, written);
    }

    /// The names of the files, or of the folders that are not hidden.
    Outcome<std::vector<std::string>> entries(const std::string& folder, bool folders) const
    {
        if (fails(folder))
            return Outcome<std::vector<std::string>>::failed(folder + ": not readable");
        std::set<std::string> names;
        const std::string prefix = plain(folder + "/");
        for (const auto& [path, bytes] : files) {
            const std::size_t end = path.find('/', prefix.size());
            const bool listed = (end != std::string::npos) == folders && !(folders && path[prefix.size()] == '.');
            if (path.starts_with(prefix) && listed)
                names.insert(path.substr(prefix.size(), end - prefix.size()));
        }
        for (const auto& [path, target] : links) {
            if (!folders && plain(path).starts_with(prefix))
                names.insert(path.substr(prefix.size()));
        }
        return std::vector<std::string>(names.begin(), names.end());
    }

    std::string at(const std::string& path) const
    {
        const auto link = links.find(plain(path));
        return link == links.end() ? plain(path) : link->second;
    }

    static std::string plain(const std::string& path)
    {
        std::string result;
        for (const char character : path) {
            const char separator = character == '\\' ? '/' : character;
            if (separator != '/' || result.empty() || result.back() != '/')
                result += separator;
        }
        return result;
    }
};

} // namespace kitwright::testing
