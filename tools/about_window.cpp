// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/about_window.h"

#include "ui_about_window.h"

#include <QPainter>
#include <QSvgRenderer>

namespace kitwright {

Form8::Form8(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::Form8>())
{
    m_ui->setupUi(this);
    connect(m_ui->Command1, &QPushButton::clicked, this, &QDialog::accept);
}

Form8::~Form8() = default;

void Form8::showEvent(QShowEvent* event)
{
    drawPicture();
    QDialog::showEvent(event);
}

void Form8::drawPicture()
{
    QSvgRenderer drawing(QStringLiteral(":/icons/about.svg"));
    if (!drawing.isValid())
        return;
    // Drawn for the screen on which the window appears, so that it is sharp at any scale.
    const qreal scale = devicePixelRatioF();
    QPixmap picture((QSizeF(drawing.defaultSize()) * scale).toSize());
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter, QRectF(QPointF(), QSizeF(drawing.defaultSize())));
    painter.end();
    m_ui->Image1->setPixmap(picture);
}

} // namespace kitwright
