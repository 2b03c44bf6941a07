// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLoggingCategory>

namespace kitwright {

Q_DECLARE_LOGGING_CATEGORY(lcApp)

} // namespace kitwright
