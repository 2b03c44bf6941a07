// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/program_launcher.h"

namespace kitwright {

/// Starts programs as processes of their own.
class QtProgramLauncher final : public ProgramLauncher {
public:
    Failure start(const std::string& program, const std::string& argument) override;
};

/// Shows a folder in the desktop's file manager.
Failure showFolder(const std::string& folder);

} // namespace kitwright
