// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/proportional_layout.h"

#include <utility>

namespace kitwright {

ProportionalLayout::ProportionalLayout(double width, double height, std::vector<Geometry> controls)
    : m_firstWidth(width),
      m_firstHeight(height),
      RememberedWidth(width),
      RememberedHeight(height),
      m_controls(std::move(controls))
{
}

std::vector<Geometry> ProportionalLayout::at(double width, double height)
{
    if (width > 0 && height > 0) {
        RememberedWidth = width;
        RememberedHeight = height;
    }
    const double horizontal = RememberedWidth / m_firstWidth;
    const double vertical = RememberedHeight / m_firstHeight;
    std::vector<Geometry> scaled = m_controls;
    for (Geometry& control : scaled) {
        control.left *= horizontal;
        control.width *= horizontal;
        control.top *= vertical;
        control.height *= vertical;
    }
    return scaled;
}

} // namespace kitwright
