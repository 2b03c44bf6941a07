// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/colour_box.h"

#include <QPainter>

namespace kitwright {

ColourBox::ColourBox(QWidget* parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QColor ColourBox::colour() const
{
    return palette().color(QPalette::Window);
}

void ColourBox::setColour(const QColor& colour)
{
    QPalette filled;
    filled.setColor(QPalette::Window, colour);
    filled.setColor(QPalette::Button, colour);
    setPalette(filled);
    update();
    Q_EMIT colourChanged();
}

std::uint32_t ColourBox::bgr() const
{
    const QColor shown = colour();
    return static_cast<std::uint32_t>(shown.blue() << 16 | shown.green() << 8 | shown.red());
}

void ColourBox::setBgr(std::uint32_t colour)
{
    const auto part = [colour](int shift) { return static_cast<int>(colour >> shift & 0xFF); };
    setColour(QColor(part(0), part(8), part(16)));
}

void ColourBox::clearColour()
{
    setPalette(QPalette());
    update();
    Q_EMIT colourChanged();
}

QSize ColourBox::sizeHint() const
{
    const int height = fontMetrics().height() + 8;
    return {height * 5 / 2, height};
}

void ColourBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QColor edge = palette().color(QPalette::WindowText);
    edge.setAlphaF(0.5F);
    painter.fillRect(rect(), colour());
    painter.setPen(edge);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (hasFocus() || isDown()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

} // namespace kitwright
