// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/context.h"

#include <functional>
#include <string>
#include <string_view>

class QWidget;

namespace kitwright {

/// A window by its given name, created when nothing has touched it yet; null when there is none of that name.
using WindowByName = std::function<QWidget*(std::string_view)>;

/// Takes the texts of the language file at `path` into the text table and shows them in every caption that follows
/// the language. When the file cannot be read, the captions are set from the texts as they stand.
void ApplyLanguage(Context& context, const WindowByName& windows, const std::string& path);

} // namespace kitwright
