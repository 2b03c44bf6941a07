// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/surroundings.h"
#include "services/keyword_tree.h"

namespace kitwright {

/// The game's classes as the class tree shows them. Its headings "Vehicles", "Weapons" and their like, with or without
/// a colon and more words, stand for the classes of the config that theirs belong in; classes of any other heading
/// stand inside classes.
GameClasses gameClasses(const KeywordTree& classes);

} // namespace kitwright
