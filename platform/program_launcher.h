// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/outcome.h"

#include <string>

namespace kitwright {

/// Starts other programs.
class ProgramLauncher {
public:
    virtual ~ProgramLauncher() = default;

    /// Starts `program` with one argument, no shell in between, and does not wait for it. On a platform with
    /// command lines the argument follows the program's path as it stands; elsewhere it is one argument without
    /// the blanks in front of it.
    virtual Failure start(const std::string& program, const std::string& argument) = 0;
};

} // namespace kitwright
