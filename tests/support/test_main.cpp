// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/running_application.h"

#include <QApplication>
#include <QHashSeed>
#include <gtest/gtest.h>

namespace {

QtMessageHandler previousHandler = nullptr;

/// Keeps what the program reports. What the toolkit complains of is a fault, but for bad pictures, and for the platform
/// without a screen, which tells of every window that it cannot place or raise.
void hear(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (text.startsWith(QLatin1String("This plugin does not support")))
        return;
    if (QLatin1String(context.category).startsWith(QLatin1String("kitwright.")))
        kitwright::testing::reports.push_back(kitwright::fromQt(text));
    else if (!QLatin1String(context.category).startsWith(QLatin1String("qt.gui.imageio")))
        ADD_FAILURE() << text.toStdString();
    previousHandler(type, context, text);
}

} // namespace

/// Every test runs with an application behind it, on a screen that is not there.
int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The same seed gives the same events, whatever the pace of the machine.
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    QHashSeed::setDeterministicGlobalSeed();
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    previousHandler = qInstallMessageHandler(hear);
    return RUN_ALL_TESTS();
}
