// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "moves.h"
#include "step.h"

namespace kitwright::walking {

/// What an author does for a purpose, one window after the other. Whatever a step cannot reach it leaves alone.
Steps story(Stage& stage, Moves& moves);

/// The way to a short document.
Steps shorten(Stage& stage, Moves& moves);

/// The way out of the program.
Steps leave(Stage& stage, Moves& moves);

} // namespace kitwright::walking
