// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/application.h"
#include "app/guarded_application.h"
#include "platform/fatal_signals.h"
#include "platform/qt_dialogs.h"
#include "platform/qt_file_system.h"
#include "platform/qt_program_launcher.h"
#include "platform/qt_text.h"
#include "text/windows_1250.h"

#include <QLoggingCategory>

int main(int argc, char* argv[])
{
    kitwright::ignoreFatalSignals();
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
