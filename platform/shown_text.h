// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <string_view>

namespace kitwright {

/// What a list, a tree, a label or a tool tip shows of a UTF-8 text: of a very long one the start, more than any line
/// has room for, and an ellipsis. The toolkit would lay out all of it.
QString shownText(std::string_view text);

} // namespace kitwright
