// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace kitwright {

/// The text that a new add-on starts with: common defines and a `CfgPatches` block for the add-on `Jmeno`, with the
/// version as it was typed. Every line ends with CR LF.
std::string startingText(std::string_view Jmeno, std::string_view version);

} // namespace kitwright
