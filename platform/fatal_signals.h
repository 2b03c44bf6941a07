// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace kitwright {

/// Lets a write fail like any other that would end the program otherwise, and the author's text with it: one to a pipe
/// that nobody reads any more, as standard error may be, and one beyond the size that the system allows a file.
/// Programs that this one starts are not concerned.
void ignoreFatalSignals();

} // namespace kitwright
