// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/shared_state.h"

#include <string_view>

namespace kitwright {

/// Takes the texts of a language file, UTF-8, into `texts`: line n is text n - 1, spaces included. Lines beyond the
/// last text are ignored; texts that the file does not reach keep their value.
void readTexts(std::string_view fileText, UiTexts& texts);

} // namespace kitwright
