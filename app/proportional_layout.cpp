// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/proportional_layout.h"

#include <utility>

namespace kitwright {

ProportionalLayout::ProportionalLayout(double width, double height, std::vector<Geometry> controls)
    : m_firstWidth(width),
      m_firstHeight(height),
      m_width(width),
      m_height(height),
      m_controls(std::move(controls))
{
}

std::vector<Geometry> ProportionalLayout::at(double width, double height)
{
    if (width > 0 && height > 0) {
        m_width = width;
        m_height = height;
    }
    const double horizontal = m_width / m_firstWidth;
    const double vertical = m_height / m_firstHeight;
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
