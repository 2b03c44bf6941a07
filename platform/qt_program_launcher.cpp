// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/qt_program_launcher.h"

#include "platform/native_path.h"
#include "platform/qt_text.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

namespace kitwright {

Failure QtProgramLauncher::start(const std::string& program, const std::string& argument)
{
    QProcess process;
#ifdef Q_OS_WIN
    process.setProgram(toQt(program));
    process.setNativeArguments(toQt(argument));
#else
    process.setProgram(toQt(program).replace(QLatin1Char('\\'), QLatin1Char('/')));
    const std::size_t first = argument.find_first_not_of(' ');
    process.setArguments({toQt(first == std::string::npos ? std::string() : argument.substr(first))});
#endif
    return process.startDetached() ? Failure() : Failure(program + ": " + fromQt(process.errorString()));
}

Failure showFolder(const std::string& folder)
{
    const QString path = nativePath(folder);
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        return {};
    return failureAt(path, QStringLiteral("no program shows folders"));
}

} // namespace kitwright
