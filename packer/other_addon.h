// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "pack/archive_writer.h"

#include <optional>
#include <string>

namespace kitwright {

/// The patch classes of an add-on that is about to be packed and of one whose archive it would replace.
struct OtherAddon {
    std::string ownClass;
    std::string otherClass;
};

/// Looks whether the archive holds another add-on than the document's: whether the `config.cpp` in it, like the
/// document, declares a patch class, and one of another name. Nothing also when the archive does not exist or cannot be
/// read, which is no reason not to replace it.
std::optional<OtherAddon> otherAddonIn(const PackTools& tools, const std::string& archive,
                                       const std::string& document);

} // namespace kitwright
