// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <map>
#include <string>

namespace kitwright::walking {

/// The disk at the start of a walk: the shipped files in the program folder, and an author's add-ons, models and
/// pictures.
std::map<std::string, std::string> authorsFiles();

} // namespace kitwright::walking
