// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kitwright::walking {

/// One event of a walk.
struct Step {
    std::string kind;
    std::string what;
    std::function<void()> act;
};

using Steps = std::vector<Step>;

} // namespace kitwright::walking
