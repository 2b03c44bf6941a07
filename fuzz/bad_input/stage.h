// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <stdexcept>
#include <string>

namespace kitwright::badinput {

/// What was expected of the program and did not come true.
class Fault : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

void expect(bool holds, const std::string& what);

/// The folders that a case is played in: "program" with the shipped data files and the settings of an author who chose
/// English, "addon" with a document, "elsewhere" for files that an author browses for. Paths are below them.
class Stage {
public:
    explicit Stage(std::filesystem::path folder);

    std::string path(const std::string& place) const { return (m_folder / place).string(); }
    std::string read(const std::string& place) const;
    void write(const std::string& place, const std::string& bytes) const;
    bool exists(const std::string& place) const { return std::filesystem::exists(m_folder / place); }

    /// Notes what every file holds.
    void remember();

    /// Faults when a file has changed, come or gone since, other than the ones named.
    void expectOnlyChanged(const std::set<std::string>& places) const;

private:
    using Listing = std::map<std::string, std::size_t>; ///< A hash of the content by place; folders are in it, too.
    Listing listing() const;

    std::filesystem::path m_folder;
    Listing m_before;
};

/// The document of the add-on: a config that the program neither colours anew in other letters nor re-ends.
extern const char* const ordinaryDocument;

} // namespace kitwright::badinput
