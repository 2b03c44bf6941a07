// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractButton>
#include <QColor>

#include <cstdint>

namespace kitwright {

/// A rectangle filled with a colour, to be clicked. The colour is the box's background in its palette; until one is
/// set the box shows the background of its window. A caption is not shown.
class ColourBox final : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QColor colour READ colour WRITE setColour NOTIFY colourChanged)

public:
    explicit ColourBox(QWidget* parent = nullptr);

    QColor colour() const;
    void setColour(const QColor& colour);

    /// The colour as 0x00BBGGRR.
    std::uint32_t bgr() const;
    void setBgr(std::uint32_t colour);

    /// Back to the background of the window.
    void clearColour();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void colourChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace kitwright
