// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>

#include <functional>
#include <utility>

namespace kitwright::badinput {

namespace {

std::string picture(const char* format, bool progressive)
{
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(progressive);
    writer.write(image);
    return bytes.toStdString();
}

/// The picture with another size in its header.
std::string withSize(std::string bytes, bool progressive, int width, int height)
{
    const std::string frame = progressive ? "\xFF\xC2" : "\xFF\xC0";
    constexpr std::size_t sizeOffset = 5; // Marker, length, bits a sample.
    const std::size_t at = bytes.find(frame) + sizeOffset;
    for (const int side : {height, width}) {
        const std::size_t place = at + (side == height ? 0 : 2);
        bytes[place] = static_cast<char>(side >> 8);
        bytes[place + 1] = static_cast<char>(side & 0xFF);
    }
    return bytes;
}

const std::vector<std::pair<std::string, std::function<std::string()>>>& kinds()
{
    static const std::vector<std::pair<std::string, std::function<std::string()>>> all = {
        {"size-65000-by-64000", [] { return withSize(picture("jpg", false), false, 65'000, 64'000); }},
        {"size-19000-by-10000", [] { return withSize(picture("jpg", false), false, 19'000, 10'000); }},
        {"progressive-19000-by-10000", [] { return withSize(picture("jpg", true), true, 19'000, 10'000); }},
        {"size-0-by-0", [] { return withSize(picture("jpg", false), false, 0, 0); }},
        {"size-1-by-20000", [] { return withSize(picture("jpg", false), false, 1, 20'000); }},
        {"another-format", [] { return picture("png", false); }},
    };
    return all;
}

} // namespace

std::string soundPicture()
{
    return picture("jpg", false);
}

std::vector<std::string> pictureKinds()
{
    std::vector<std::string> names;
    for (const auto& [name, make] : kinds())
        names.push_back(name);
    return names;
}

std::optional<std::string> badPicture(std::string_view kind, std::string_view sound)
{
    if (!sound.starts_with("\xFF\xD8"))
        return std::nullopt;
    for (const auto& [name, make] : kinds()) {
        if (name == kind)
            return make();
    }
    return std::nullopt;
}

} // namespace kitwright::badinput
