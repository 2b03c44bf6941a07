// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/log.h"

namespace kitwright {

Q_LOGGING_CATEGORY(lcApp, "kitwright.app")

} // namespace kitwright
