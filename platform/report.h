// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/outcome.h"

#include <QLoggingCategory>

namespace kitwright {

/// Leaves one line on standard error when a step failed, so that it can be traced: "kitwright.app: saving: ...". What a
/// terminal would take for more than a letter, such as in a path that a damaged file brought, becomes a question mark.
void report(const QLoggingCategory& category, const char* step, const Failure& failure);

} // namespace kitwright
