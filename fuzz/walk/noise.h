// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "moves.h"
#include "step.h"

namespace kitwright::walking {

/// Events without a plan, in a window that can be reached; what they do is chosen at once. Some take several steps: a
/// drag ends with its release, an odd size of a window with a useful one.
Steps noise(Stage& stage, Moves& moves);

} // namespace kitwright::walking
