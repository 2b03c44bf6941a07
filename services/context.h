// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/program_launcher.h"
#include "services/addon_host.h"
#include "services/shared_state.h"
#include "text/text_files.h"

#include <functional>
#include <string>
#include <string_view>

namespace kitwright {

/// What windows and commands are built from. There is one, which the composition root owns and which outlives every
/// window; whatever they come to share is a member here.
struct Context {
    FileSystem& files; ///< The one shared file-system service.
    TextFiles& texts;
    Dialogs& dialogs;
    ProgramLauncher& launcher;

    SharedState state{};

    /// Tells of a step that failed and was skipped; without a failure it does nothing.
    std::function<void(const char* step, const Failure& failure)> report{};

    /// The main window; set before any other window is made.
    AddonHost* host = nullptr;

    /// A text of the chosen language.
    const std::string& text(UiText text) const { return state.TextTable[static_cast<std::size_t>(text)]; }

    /// A path below the program folder; `path` starts with '/'.
    std::string inProgramFolder(std::string_view path) const { return state.programFolder + std::string(path); }
};

} // namespace kitwright
