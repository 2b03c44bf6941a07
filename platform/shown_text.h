// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <string_view>

namespace kitwright {

/// What a list, a tree or a label shows of a UTF-8 text: of a very long one the start, more than any line has room for,
/// and an ellipsis. The toolkit would lay out all of it.
QString shownText(std::string_view text);

/// A text as a tool tip, in the same length. What looks like markup is shown as it stands, not followed: it could name
/// any file of the author's disk as a picture.
QString toolTipText(std::string_view text);

} // namespace kitwright
