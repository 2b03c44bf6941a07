// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/characters.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace kitwright {

using NameSet = std::unordered_set<std::string, NameHash, SameName>;

/// The classes that the game has, by the headings of its config ("CfgVehicles") that they stand in. Those of an empty
/// heading stand inside classes.
class GameClasses {
public:
    static constexpr int none = -1;

    struct Entry {
        std::string name;
        std::string heading;
        int base = none; ///< Index of the class that it derives from.
    };

    /// Gives the index of the class; of two of one name in a heading the first one counts.
    int add(std::string_view heading, std::string_view name, int base);

    /// `none` when the heading has no such class.
    int find(std::string_view heading, std::string_view name) const;

    const Entry& operator[](int index) const { return m_entries[static_cast<std::size_t>(index)]; }

private:
    std::vector<Entry> m_entries;
    using Indexes = std::unordered_map<std::string, int, NameHash, SameName>;
    std::unordered_map<std::string, Indexes, NameHash, SameName> m_indexes; ///< By heading and name.
};

/// What a property takes, as far as the check needs to know.
enum class PropertyKind : std::uint8_t { Unknown, Number, Model, Picture, Sound, Animation };

/// The kinds of the game's properties by their names, which go without brackets.
class PropertyKinds {
public:
    void add(std::string_view name, PropertyKind kind) { m_kinds.insert_or_assign(std::string(name), kind); }

    /// Adds the entries of a list file: a name and the number of its kind in each line.
    void addLines(std::string_view text);

    PropertyKind kindOf(std::string_view name) const;

private:
    std::unordered_map<std::string, PropertyKind, NameHash, SameName> m_kinds;
};

/// The files in the folder of a config, and what its string tables hold.
class AddonFolder {
public:
    /// `name` is that of the folder itself.
    explicit AddonFolder(std::string name = {}) : m_name(std::move(name)) {}

    const std::string& name() const { return m_name; }

    /// Adds a file by its path below the folder, in its spelling on the disk; '/' and '\' both separate folders.
    void addFile(std::string_view path);

    /// The path of a file below the folder as the disk spells it, with '/'. A path without an extension finds a file
    /// of any. Nothing when there is no such file.
    std::optional<std::string> find(std::string_view path) const;

    /// Adds the keys of a string table: the first field of each line.
    void addKeys(std::string_view table);

    /// Whether a string table has a key, with or without its "$".
    bool hasKey(std::string_view key) const;

    const NameSet& keys() const { return m_keys; }

private:
    std::string m_name;
    std::unordered_map<std::string, std::string, NameHash, SameName> m_files;
    std::unordered_map<std::string, std::string, NameHash, SameName> m_stems; ///< Paths without their extension.
    NameSet m_keys;
};

/// What the check knows of the world around a config. What is not there is not told of.
struct Surroundings {
    const GameClasses* game = nullptr;
    const PropertyKinds* properties = nullptr;
    const AddonFolder* folder = nullptr;

    /// Gives the text of a file, UTF-8, by its path as `AddonFolder::find` gives it.
    std::function<std::optional<std::string>(const std::string& path)> readFile;
};

} // namespace kitwright
