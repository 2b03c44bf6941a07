// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/program_launcher.h"
#include "text/text_files.h"

namespace kitwright {

/// The desktop as the program reaches it; tests put stand-ins in its place.
struct Desktop {
    FileSystem& files;
    TextFiles& texts;
    Dialogs& dialogs;
    ProgramLauncher& launcher;
};

} // namespace kitwright
