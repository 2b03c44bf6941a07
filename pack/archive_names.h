// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

namespace kitwright {

/// Why a name must not be in an archive, one of the texts in `why`, or nullptr when it may. A name is UTF-8, relative,
/// and its parts are separated by backslashes; a sound one means the same file below any folder on any system.
const char* nameFault(std::string_view name);

/// What a file system that is not particular makes of a name: equal for two names that it would take for one. Names
/// are sorted by it, too.
std::string foldedName(std::string_view name);

/// The names of one archive, which must not stand in each other's way.
class NameSet {
public:
    /// Adds a sound name. One of the texts in `why` when it is another's twin, or when one of the two would have to be
    /// a folder for the other; nullptr when all is well.
    const char* add(std::string_view name);

private:
    enum class Kind { File, Folder };
    std::unordered_map<std::string, Kind> m_known; ///< By folded name.
};

} // namespace kitwright
