// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace kitwright::fuzzing {

/// What a fuzz target does with one input, raw bytes; each target's file defines it. It ends the program when
/// something does not hold.
void tryInput(std::string_view bytes);

/// Ends the program, with `promise` on standard error, unless the promise was kept.
void require(bool kept, const char* promise);

} // namespace kitwright::fuzzing
