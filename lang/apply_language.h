// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/context.h"

#include <span>
#include <string>

class QWidget;

namespace kitwright {

/// Shows the texts of the text table in those captions of a window that follow the language; the window is known by
/// its object name. A control that is not there is reported.
void showCaptions(QWidget& window, const Context& context);

/// Takes the texts of the language file at `path` into the text table and shows them in the captions of the windows.
/// When the file cannot be read, the captions are set from the texts as they stand. A window that is made later gets
/// its captions by `showCaptions`.
void ApplyLanguage(Context& context, const std::string& path, std::span<QWidget* const> windows);

} // namespace kitwright
