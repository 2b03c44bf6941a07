// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace kitwright {

inline QString toQt(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::string fromQt(const QString& text)
{
    return text.toStdString();
}

} // namespace kitwright
