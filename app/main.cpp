// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/application.h"
#include "app/check_command.h"
#include "app/guarded_application.h"
#include "platform/fatal_signals.h"
#include "platform/qt_dialogs.h"
#include "platform/qt_file_system.h"
#include "platform/qt_program_launcher.h"
#include "platform/qt_text.h"
#include "text/windows_1250.h"

#include <QLoggingCategory>

#include <iostream>

namespace {

/// Does what the arguments ask for without a window; nothing when they ask for none of it.
std::optional<int> runWithoutWindow(int argc, char* argv[])
{
    using namespace kitwright;
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i)
        arguments.push_back(fromQt(QString::fromLocal8Bit(argv[i])));
    const std::optional<CheckOrder> order = checkOrder(arguments);
    if (!order)
        return std::nullopt;
    const QCoreApplication program(argc, argv);
    QtFileSystem files;
    const TextFiles texts(files, windows1250());
    const GameKnowledge game = readGameKnowledge(texts, fromQt(QCoreApplication::applicationDirPath()));
    return runCheck(*order, files, windows1250(), game, {}, std::cout, std::cerr);
}

} // namespace

int main(int argc, char* argv[])
{
    kitwright::ignoreFatalSignals();
    if (const std::optional<int> code = runWithoutWindow(argc, argv))
        return *code;
    // A picture that cannot be read is told of in one line of the editor's own.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false"));
    kitwright::GuardedApplication desktop(argc, argv);
    kitwright::GuardedApplication::setApplicationName(QStringLiteral("kitwright"));

    kitwright::QtFileSystem files;
    kitwright::TextFiles texts(files, kitwright::windows1250());
    kitwright::QtDialogs dialogs;
    kitwright::QtProgramLauncher launcher;

    kitwright::Application application(files, texts, dialogs, launcher,
                                       kitwright::fromQt(kitwright::GuardedApplication::applicationDirPath()));
    application.start();
    application.mainWindow().showFitted();
    return kitwright::GuardedApplication::exec();
}
