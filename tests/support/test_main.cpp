// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <gtest/gtest.h>

namespace {

QtMessageHandler previousHandler = nullptr;

void withoutPlatformNoise(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support")))
        previousHandler(type, context, text);
}

} // namespace

/// Every test runs with an application behind it, on a screen that is not there.
int main(int argc, char* argv[])
{
    // The platform without a screen tells of every window that it cannot place or raise.
    previousHandler = qInstallMessageHandler(withoutPlatformNoise);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
