// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "contents.h"

#include <string>
#include <vector>

namespace kitwright::badinput {

/// A case, and what came of it.
struct Result {
    std::string surface;
    std::string kind;
    std::size_t bytes = 0; ///< Of the bad file.
    std::string outcome;   ///< In a few words; of a case that did not end soundly, what went wrong.
    bool sound = false;
    double seconds = 0;
    double megabytes = 0; ///< Of memory, at the highest.
};

/// A case to play.
struct Order {
    std::string surface;
    std::string kind;
};

/// Plays the cases, each in a process of its own and `atOnce` of them at a time; results are in the order of the cases.
std::vector<Result> playAll(const std::vector<Order>& orders, SizeFactor factor, unsigned atOnce);

/// Writes the line by which a case's own process tells its outcome.
void tellOutcome(bool sound, std::size_t bytes, const std::string& outcome);

} // namespace kitwright::badinput
