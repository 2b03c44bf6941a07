// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "authors_files.h"

#include "support/running_application.h"

#include <QBuffer>
#include <QImage>

namespace kitwright::walking {

namespace {

constexpr const char* tank =
    "class CfgPatches\r\n{\r\n   class tank\r\n   {\r\n      units[] = {};\r\n"
    "      weapons[] = {};\r\n      requiredVersion = 1.0;\r\n   };\r\n};\r\n"
    "// k\xF9\xF2\r\nclass CfgVehicles\r\n{\r\n   class All;\r\n   class tank: All\r\n   {\r\n"
    "      displayName = \"Tank\";\r\n      scope = 2;\r\n   };\r\n};\r\n";

std::string picture()
{
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "JPG"))
        throw std::runtime_error("no JPG can be made");
    return bytes.toStdString();
}

std::string allBytes()
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    return bytes + bytes;
}

std::string repeated(const std::string& text, int times)
{
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

} // namespace

std::map<std::string, std::string> authorsFiles()
{
    std::map<std::string, std::string> files = testing::RunningApplication().files.files;
    const std::string jpg = picture();
    files["/pictures/face.jpg"] = jpg;
    files["/pictures/FACE.JPG"] = jpg;
    files["/pictures/broken.jpg"] = jpg.substr(0, jpg.size() / 2);
    files["/models/gun.p3d"] = "a gun";
    files["/others/gun.p3d"] = "another gun";
    files["/others/config.cpp"] = "class Another;\r\n";
    files["/others/Stringtable.csv"] = "LANGUAGE,English\r\n$STRM_OTHER,Other\r\n";
    files["/models/a b.p3d"] = "a model";
    files["/models/Žluťásek.p3d"] = "a yellow model";
    files["/locked/inside/file"] = "";
    files["/addons/tank/config.cpp"] = tank;
    files["/addons/tank/Stringtable.csv"] = "LANGUAGE,English,Czech\r\n$STRM_TANK,Tank,Tank\r\n";
    files["/addons/gun/config.cpp"] =
        "class CfgWeapons\r\n{\r\n   class Default;\r\n   class Gun: Default\r\n   {\r\n   };\r\n};";
    files["/addons/table/config.cpp"] = "";
    files["/addons/table/STRINGTABLE.CSV"] =
        "\r\nnotes, by hand\r\nLanguage,Klingon,English\n\"A\",\"b\"\"c\",\"d\ne\"\nA,x\n,,\n";
    files["/addons/lf/config.cpp"] = "class A\n{\n};\n/* \n";
    files["/addons/cr/config.cpp"] = "class A\r{\r};\r\r\n\n\r";
    files["/addons/bytes/config.cpp"] = allBytes();
    files["/addons/bytes/stringtable.csv"] = allBytes();
    files["/addons/empty/config.cpp"] = "";
    files["/addons/long/config.cpp"] = repeated(tank, 100) + std::string(5000, 'x');
    files["/read-only/config.cpp"] = tank;
    return files;
}

} // namespace kitwright::walking
