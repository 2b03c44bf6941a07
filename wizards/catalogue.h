// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/searches.h"
#include "text/list_file.h"
#include "text/text_files.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kitwright {

/// The kind number of a property whose value is the path of a file.
inline constexpr std::int16_t fileKind = 2;

/// Appends the entries of a flat list file to `list`; on a failure the list keeps what it has.
Failure LoadListFile(const TextFiles& texts, const std::string& path, std::vector<ListEntry>& list);

/// The base classes that a class wizard offers, sorted without regard to letter case so that they can be searched.
class BaseClassList final : public TextList {
public:
    BaseClassList() = default;
    explicit BaseClassList(const std::vector<ListEntry>& entries);

    int count() const override { return static_cast<int>(m_names.size()); }
    std::string_view textAt(int index) const override;

    /// Index of the first class that begins with `name`, in any letter case; -1 when there is none.
    int find(std::string_view name) const;

private:
    std::vector<std::string> m_names;
};

/// What the entries of a property tree mean, told apart by their parent where a name means several things.
class PropertyHelp {
public:
    PropertyHelp() = default;

    /// Takes a list whose entries are named "name" or "Parent/name"; of two with the same name the first counts.
    explicit PropertyHelp(const std::vector<ListEntry>& entries);

    /// The help for "Parent/name", else for "name", else empty.
    std::string find(const std::string& parent, const std::string& name) const;

private:
    std::unordered_map<std::string, std::string> m_help;
};

} // namespace kitwright
