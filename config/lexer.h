// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/token.h"

namespace kitwright {

/// Takes a text of the config language apart. Every text has tokens; only its first 4 GB are read.
Tokens readTokens(std::string_view text);

} // namespace kitwright
