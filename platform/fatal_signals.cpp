// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/fatal_signals.h"

#include <QtGlobal>

#include <csignal>

namespace kitwright {

void ignoreFatalSignals()
{
#ifdef Q_OS_UNIX
    // A started program would inherit that they are ignored, but not a handler.
    for (const int signal : {SIGPIPE, SIGXFSZ})
        std::signal(signal, [](int) {});
#endif
}

} // namespace kitwright
