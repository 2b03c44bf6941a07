// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/paths.h"

#include <algorithm>

namespace kitwright {

namespace {

#ifdef _WIN32
constexpr std::string_view separators = "\\";
#else
constexpr std::string_view separators = "\\/";
#endif

/// Length of the path up to and including its last separator; 0 when it has none.
std::size_t folderLength(std::string_view path)
{
    const std::size_t last = path.find_last_of(separators);
    return last == std::string_view::npos ? 0 : last + 1;
}

} // namespace

std::string FileNameOf(std::string_view path)
{
    const std::size_t length = folderLength(path);
    return length == 0 ? std::string() : std::string(path.substr(length));
}

std::string FolderOf(std::string_view path)
{
    const std::size_t length = folderLength(path);
    return std::string(length == 0 ? path : path.substr(0, length));
}

bool isPlainFileName(std::string_view name)
{
    if (name.empty() || name == "." || name == "..")
        return false;
    return std::none_of(name.begin(), name.end(), [](char character) {
        return static_cast<unsigned char>(character) < 0x20 || character == '/' || character == '\\'
            || character == '\x7F';
    });
}

} // namespace kitwright
