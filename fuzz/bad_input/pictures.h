// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright::badinput {

/// A sound JPG picture of 64 by 64 pixels.
std::string soundPicture();

/// The ways to be bad that only pictures have.
std::vector<std::string> pictureKinds();

/// A bad picture; nothing for any other kind, or where the sound file is no picture.
std::optional<std::string> badPicture(std::string_view kind, std::string_view sound);

} // namespace kitwright::badinput
