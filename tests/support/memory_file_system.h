// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_system.h"

#include <map>
#include <set>
#include <string>

namespace kitwright::testing {

/// Files in memory, by path. Both separators are taken as '/', and two in a row as one. A path whose folder has no
/// entry may still be written: folders come with their files.
class MemoryFileSystem final : public FileSystem {
public:
    std::map<std::string, std::string> files;
    std::set<std::string> unwritable; ///< Paths that refuse to be written.

    std::map<std::string, std::set<std::string>>* history = nullptr; ///< Takes all that is written, by path.

    mutable int operations = 0; ///< Readings, writings, copyings and listings so far.
    mutable std::string failed; ///< What the failing operation was.
    int failing = 0;            ///< The operation, counted from 1, that fails; 0: none.

    bool fileExists(const std::string& path) const override { return files.contains(plain(path)); }

    Outcome<std::string> readBytes(const std::string& path) const override
    {
        if (fails("reading " + path))
            return Outcome<std::string>::failed(path + ": not readable");
        const auto found = files.find(plain(path));
        return found == files.end() ? Outcome<std::string>::failed(path + ": no such file") : found->second;
    }

    Failure writeBytes(const std::string& path, std::string_view bytes) override
    {
        if (fails("writing " + path) || unwritable.contains(plain(path)))
            return path + ": not writable";
        files[plain(path)] = std::string(bytes);
        if (history)
            (*history)[plain(path)].emplace(bytes);
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
    /// Counts an operation; true for the one that is to fail.
    bool fails(const std::string& operation) const
    {
        const bool fault = ++operations == failing;
        if (fault)
            failed = operation;
        return fault;
    }

    /// The names of the files, or of the folders that are not hidden.
    Outcome<std::vector<std::string>> entries(const std::string& folder, bool folders) const
    {
        if (fails("listing " + folder))
            return Outcome<std::vector<std::string>>::failed(folder + ": not readable");
        std::set<std::string> names;
        const std::string prefix = plain(folder + "/");
        for (const auto& [path, bytes] : files) {
            const std::size_t end = path.find('/', prefix.size());
            const bool listed = (end != std::string::npos) == folders && !(folders && path[prefix.size()] == '.');
            if (path.starts_with(prefix) && listed)
                names.insert(path.substr(prefix.size(), end - prefix.size()));
        }
        return std::vector<std::string>(names.begin(), names.end());
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
