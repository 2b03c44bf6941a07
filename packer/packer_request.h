// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_system.h"

#include <optional>
#include <string>
#include <string_view>

namespace kitwright {

/// What the editor has the packer do.
struct PackerRequest {
    std::string document; ///< The add-on's `config.cpp`.
    std::string folder;   ///< The document's, without a separator at its end; it is packed.
    std::string archive;
};

/// Reads the argument that the editor hands over, "DOCUMENT,ARCHIVE,2", blanks in front of it or none. Nothing in it is
/// quoted, so either path may hold commas: of all partings it is the one whose first piece is an existing file, and of
/// several of these the first whose second piece lies in an existing folder. Nothing when there is none.
std::optional<PackerRequest> readRequest(const FileSystem& files, std::string_view argument);

} // namespace kitwright
