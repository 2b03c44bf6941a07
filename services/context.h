// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "services/addon_host.h"
#include "services/shared_state.h"
#include "text/text_files.h"

namespace kitwright {

/// What a window is built from; the composition root owns all of it and outlives every window.
struct Context {
    SharedState& state;
    FileSystem& files; ///< The one shared file-system service.
    TextFiles& texts;
    Dialogs& dialogs;
    AddonHost& host;

    /// Text N of the chosen language.
    const std::string& text(std::size_t number) const { return state.TextTable[number]; }

    /// A path below the program folder; `path` starts with '/'.
    std::string inProgramFolder(std::string_view path) const { return state.programFolder + std::string(path); }
};

} // namespace kitwright
