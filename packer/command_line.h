// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "pack/archive_writer.h"

#include <string>
#include <vector>

namespace kitwright {

enum class PackCommand { Pack, List, Verify, Unpack, Help, Version };

/// What the command-line packer is asked to do.
struct CommandLine {
    PackCommand command = PackCommand::Help;
    PackOrder order;          ///< Of `Pack`.
    std::string archive;      ///< Of `List`, `Verify` and `Unpack`.
    std::string folder;       ///< Of `Unpack`.
    bool withDetails = false; ///< Of `List`.
};

/// Reads the words behind the program's name. Failure, in one line, when they are not what `commandLineHelp` says.
Outcome<CommandLine> parseCommandLine(const std::vector<std::string>& words);

/// How the program is used, some lines.
extern const char* const commandLineHelp;

} // namespace kitwright
