// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/surroundings.h"

#include "text/list_file.h"

#include <algorithm>

namespace kitwright {

namespace {

/// The path with '/', without "." and empty parts; nothing when it leads out of the folder.
std::optional<std::string> plainPath(std::string_view path)
{
    std::string plain;
    while (!path.empty()) {
        std::size_t end = 0;
        while (end < path.size() && path[end] != '/' && path[end] != '\\')
            ++end;
        const std::string_view part = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (part == "..") {
            if (plain.empty())
                return std::nullopt;
            const std::size_t last = plain.rfind('/');
            plain.resize(last == std::string::npos ? 0 : last);
        } else if (!part.empty() && part != ".") {
            plain.append(plain.empty() ? "" : "/").append(part);
        }
    }
    return plain;
}

/// The part of a path in front of the extension of its last part; empty when it has none.
std::string_view stemOf(std::string_view path)
{
    const std::size_t dot = path.rfind('.');
    const std::size_t folder = path.rfind('/');
    const bool isExtension = dot != std::string_view::npos && (folder == std::string_view::npos || dot > folder);
    return isExtension ? path.substr(0, dot) : std::string_view();
}

} // namespace

int GameClasses::add(std::string_view heading, std::string_view name, int base)
{
    Indexes& indexes = m_indexes[std::string(heading)];
    const auto [place, isNew] = indexes.try_emplace(std::string(name), static_cast<int>(m_entries.size()));
    if (isNew)
        m_entries.push_back({std::string(name), std::string(heading), base});
    return place->second;
}

int GameClasses::find(std::string_view heading, std::string_view name) const
{
    const auto indexes = m_indexes.find(heading);
    if (indexes == m_indexes.end())
        return none;
    const auto found = indexes->second.find(name);
    return found == indexes->second.end() ? none : found->second;
}

void PropertyKinds::addLines(std::string_view text)
{
    for (const ListEntry& entry : listEntries(text)) {
        if (entry.kind > 0 && entry.kind <= static_cast<int>(PropertyKind::Animation))
            add(entry.text, static_cast<PropertyKind>(entry.kind));
    }
}

PropertyKind PropertyKinds::kindOf(std::string_view name) const
{
    const auto found = m_kinds.find(name);
    return found == m_kinds.end() ? PropertyKind::Unknown : found->second;
}

void AddonFolder::addFile(std::string_view path)
{
    const std::string plain = plainPath(path).value_or(std::string());
    m_files.try_emplace(plain, plain);
    if (const std::string_view stem = stemOf(plain); !stem.empty())
        m_stems.try_emplace(std::string(stem), plain);
}

std::optional<std::string> AddonFolder::find(std::string_view path) const
{
    const std::optional<std::string> plain = plainPath(path);
    if (!plain)
        return std::nullopt;
    if (const auto found = m_files.find(*plain); found != m_files.end())
        return found->second;
    if (!stemOf(*plain).empty())
        return std::nullopt;
    const auto found = m_stems.find(*plain);
    return found == m_stems.end() ? std::nullopt : std::optional(found->second);
}

void AddonFolder::addKeys(std::string_view table)
{
    while (!table.empty()) {
        const std::size_t end = std::min(table.find_first_of("\r\n"), table.size());
        std::string_view key = trimmedBlanks(table.substr(0, std::min(end, table.find(','))));
        table.remove_prefix(std::min(end + 1, table.size()));
        if (key.size() > 1 && key.front() == '"' && key.back() == '"')
            key = key.substr(1, key.size() - 2);
        if (key.starts_with('$'))
            key.remove_prefix(1);
        if (sameName(key.substr(0, 3), "STR"))
            m_keys.emplace(key);
    }
}

bool AddonFolder::hasKey(std::string_view key) const
{
    if (key.starts_with('$'))
        key.remove_prefix(1);
    return m_keys.find(key) != m_keys.end();
}

} // namespace kitwright
