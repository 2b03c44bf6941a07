// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/application.h"
#include "platform/qt_dialogs.h"
#include "platform/qt_file_system.h"
#include "platform/qt_program_launcher.h"
#include "support/ratios.h"
#include "text/windows_1250.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using namespace kitwright;

/// A program folder with the shipped data and settings that name a language.
class ProgramFolder {
public:
    explicit ProgramFolder(const QString& language)
    {
        for (const char* part : {"Bfdata/kitwright/", "Bfdata/languages/kitwright/"}) {
            const QString source = QStringLiteral(KITWRIGHT_TOP "/data/") + QLatin1String(part);
            QDir(m_folder.path()).mkpath(QLatin1String(part));
            for (const QString& name : QDir(source).entryList(QDir::Files))
                QFile::copy(source + name, m_folder.filePath(QLatin1String(part) + name));
        }
        EditorSettings settings;
        settings.LanguageFile = path() + "/Bfdata/languages/kitwright/" + language.toStdString();
        QtFileSystem files;
        SaveSettings(files, windows1250(), path() + "/Kitwright.cfg", settings);
    }

    std::string path() const { return m_folder.path().toStdString(); }

private:
    QTemporaryDir m_folder;
};

/// Processor time of the parts of one start, in seconds.
struct Start {
    double mainWindow = 0;
    double dataAndWindows = 0; ///< Data files, language, every other window.
    double firstPaint = 0;

    double whole() const { return mainWindow + dataAndWindows + firstPaint; }
};

Start start(const std::string& programFolder)
{
    QtFileSystem files;
    TextFiles texts(files, windows1250());
    QtDialogs dialogs;
    QtProgramLauncher launcher;
    Start parts;
    const double begin = bench::processorTime();
    Application application(files, texts, dialogs, launcher, programFolder);
    const double made = bench::processorTime();
    application.start();
    const double started = bench::processorTime();
    application.mainWindow().showFitted();
    QApplication::processEvents();
    parts.mainWindow = made - begin;
    parts.dataAndWindows = started - made;
    parts.firstPaint = bench::processorTime() - started;
    return parts;
}

/// The quickest of several starts.
Start quickest(const QString& language)
{
    const ProgramFolder folder(language);
    std::vector<Start> starts;
    constexpr int repetitions = 5;
    for (int i = 0; i < repetitions; ++i)
        starts.push_back(start(folder.path()));
    return *std::min_element(starts.begin(), starts.end(),
                             [](const Start& left, const Start& right) { return left.whole() < right.whole(); });
}

void print(const char* what, const Start& parts, double whole)
{
    std::printf("%-16s main window %5.1f %%, data and windows %5.1f %%, first paint %5.1f %%, in all %6.1f ms\n",
                what, 100 * parts.mainWindow / whole, 100 * parts.dataAndWindows / whole,
                100 * parts.firstPaint / whole, 1000 * parts.whole());
}

} // namespace

/// Prints what a start costs besides the toolkit's own, and how the languages compare.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const double begin = bench::processorTime();
    QApplication application(argc, argv);
    std::printf("the toolkit itself: %.1f ms\n", 1000 * (bench::processorTime() - begin));

    double slowest = 0;
    double first = 0;
    for (const char* language : {"cestina.lng", "english.lng", "deutsch.lng", "polski.lng", "slovencina.lng"}) {
        const Start parts = quickest(QLatin1String(language));
        print(language, parts, parts.whole());
        slowest = std::max(slowest, parts.whole());
        if (first <= 0)
            first = parts.whole();
    }
    std::printf("start in the slowest language / in the first: %.2f\n", slowest / first);
    return 0;
}
