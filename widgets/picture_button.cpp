// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/picture_button.h"

#include <QPainter>
#include <QStyleOption>

namespace kitwright {

PictureButton::PictureButton(QWidget* parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
}

void PictureButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (underMouse() && isEnabled())
        painter.fillRect(rect(), palette().color(QPalette::Midlight));

    constexpr int space = 4;
    const QRect inside = rect().adjusted(space, space, -space, -space);
    const int side = qMin(inside.width(), inside.height());
    QRect picture(0, 0, side, side);
    picture.moveCenter(inside.center());
    icon().paint(&painter, picture, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);

    if (isDown()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    } else if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void PictureButton::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void PictureButton::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

} // namespace kitwright
