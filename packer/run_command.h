// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "packer/command_line.h"

#include <iosfwd>

namespace kitwright {

/// Does what the words behind the program's name say. Results go to `out`, and what went wrong, in a line, to `error`.
/// Returns the exit status: 0, 1 when an archive, a file or a folder is at fault, 2 when the words make no sense.
int runCommand(const std::vector<std::string>& words, const PackTools& tools, std::ostream& out,
               std::ostream& error, const Progress& progress);

} // namespace kitwright
