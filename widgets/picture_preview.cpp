// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/picture_preview.h"

#include <QBuffer>
#include <QImageReader>

namespace kitwright {

namespace {

constexpr int longestSide = 20'000; // Of a picture that is decoded at all.
constexpr qint64 mostPixels =
    36'000'000; // Of a progressive picture the decoder keeps all, at 6 bytes or more each.
constexpr QSize decodedSize(1'600, 1'600); // Enough for a preview that fills a large screen.

} // namespace

PicturePreview::PicturePreview(QWidget* parent) : QLabel(parent)
{
    setAlignment(Qt::AlignCenter);
    // The picture takes the room that the window gives, never the other way round.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

bool PicturePreview::showPicture(std::string_view bytes)
{
    QByteArray encoded = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&encoded);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "jpeg");
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > longestSide || size.height() > longestSide
        || qint64(size.width()) * size.height() > mostPixels)
        return false;
    if (size.boundedTo(decodedSize) != size)
        reader.setScaledSize(size.scaled(decodedSize, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    const QImage picture = reader.read();
    if (picture.isNull())
        return false;
    m_picture = picture;
    fitPicture();
    return true;
}

void PicturePreview::clearPicture()
{
    m_picture = QImage();
    clear();
}

void PicturePreview::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    fitPicture();
}

void PicturePreview::fitPicture()
{
    const QSize room = contentsRect().size() * devicePixelRatio();
    if (m_picture.isNull() || room.isEmpty())
        return;
    QPixmap pixmap = QPixmap::fromImage(m_picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(devicePixelRatio());
    setPixmap(pixmap);
}

} // namespace kitwright
