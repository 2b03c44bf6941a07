// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/windows_1250.h"

#include <QStringDecoder>

namespace kitwright {

namespace {

CodePage buildWindows1250()
{
    QStringDecoder decoder("windows-1250");
    if (!decoder.isValid())
        qFatal("the text codec for windows-1250 is missing");

    QByteArray bytes(256, Qt::Uninitialized);
    for (int byte = 0; byte < 256; ++byte)
        bytes[byte] = static_cast<char>(byte);
    const QString characters = decoder(bytes);
    if (characters.size() != 256)
        qFatal("the text codec for windows-1250 does not give one character a byte");

    std::array<char16_t, 256> table{};
    for (int byte = 0; byte < 256; ++byte)
        table[static_cast<std::size_t>(byte)] = characters[byte].unicode();
    return CodePage(table);
}

} // namespace

const CodePage& windows1250()
{
    static const CodePage codePage = buildWindows1250();
    return codePage;
}

} // namespace kitwright
