// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/ui_text.h"

#include <span>
#include <string_view>

namespace kitwright {

/// Which text a control of a window shows.
struct Caption {
    std::string_view window;
    std::string_view control; ///< Empty: the window's own caption.
    UiText text;
};

/// Every caption that follows the language, window by window. What is not listed keeps its designer caption.
std::span<const Caption> captionTable();

} // namespace kitwright
