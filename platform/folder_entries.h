// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/outcome.h"

#include <functional>

class QFileInfo;
class QString;

namespace kitwright {

/// Visits what a folder holds, in the order in which the system lists it. Failure when it is no folder that can be read,
/// or when reading it fails on the way.
Failure eachEntry(const QString& folder, const std::function<void(const QFileInfo&)>& visit);

} // namespace kitwright
