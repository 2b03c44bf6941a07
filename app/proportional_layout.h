// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

namespace kitwright {

/// A control's place on its window, in pixels with fractions.
struct Geometry {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// Keeps every control of a window in proportion to the window's size. The places are computed from the first ones,
/// so that no number of resizes adds up rounding.
class ProportionalLayout {
public:
    /// `controls` are the places at the given size of the window.
    ProportionalLayout(double width, double height, std::vector<Geometry> controls);

    /// The places at another size, or at the remembered one when this is not positive.
    std::vector<Geometry> at(double width, double height);

private:
    double m_firstWidth;
    double m_firstHeight;
    double RememberedWidth;  ///< At the last resize to a size that was positive.
    double RememberedHeight; ///< The same for the height.
    std::vector<Geometry> m_controls;
};

} // namespace kitwright
