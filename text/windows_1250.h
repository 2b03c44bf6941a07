// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/code_page.h"

namespace kitwright {

/// The code page of the author's files, from the desktop library's converter. Built once; ends the program with a
/// line on standard error when the converter is missing.
const CodePage& windows1250();

} // namespace kitwright
