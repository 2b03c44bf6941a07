// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/settings.h"
#include "services/ui_text.h"

#include <string>

namespace kitwright {

/// What every window shares. The wizards' and the stringtable's own arrays live in their rooms.
struct SharedState {
    EditorSettings Settings;

    /// The texts of the chosen language; replaced as a whole by `ApplyLanguage` only, empty until then.
    UiTexts TextTable;

    /// Full path of the open `config.cpp`; empty for a document not yet saved.
    std::string CurrentFile;

    /// The add-on's name: the class declared inside `CfgPatches`.
    std::string PatchClassName;

    /// The folder of the running program, without a separator at its end.
    std::string programFolder;
};

} // namespace kitwright
