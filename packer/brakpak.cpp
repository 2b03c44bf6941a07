// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packer/packer_window.h"
#include "packer/translation.h"
#include "platform/fatal_signals.h"
#include "platform/qt_file_streams.h"
#include "platform/qt_file_system.h"
#include "platform/qt_program_launcher.h"
#include "platform/qt_sha1.h"
#include "platform/qt_text.h"
#include "text/windows_1250.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    kitwright::ignoreFatalSignals();
    QApplication program(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kitwright"));
    const std::string programFolder = kitwright::fromQt(QApplication::applicationDirPath());

    kitwright::QtFileSystem files;
    kitwright::QtFileStreams streams;
    kitwright::QtSha1 sha1;
    const kitwright::PackTools tools{files, streams, kitwright::windows1250(), sha1};
    kitwright::speak(kitwright::chosenLanguage(files, tools.codePage, programFolder), program, programFolder);

    // The editor hands over one argument; a platform with command lines takes it apart at its blanks.
    const std::string argument = kitwright::fromQt(QApplication::arguments().mid(1).join(QLatin1Char(' ')));
    const kitwright::PackerSurroundings surroundings{
        tools,
        [](const std::string&) { return std::vector<std::string>(); },
        kitwright::showFolder,
    };
    kitwright::PackerWindow window(surroundings, kitwright::readRequest(files, argument));
    window.start();
    return window.exec() == QDialog::Accepted ? 0 : 1;
}
