// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/colouring.h"
#include "editor/scintilla_control.h"
#include "editor/scintilla_text_box.h"
#include "platform/qt_file_system.h"
#include "support/sample.h"
#include "text/text_files.h"
#include "text/windows_1250.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <malloc.h>
#include <unistd.h>

namespace {

using namespace kitwright;

/// Resident memory of this process, in bytes.
double residentMemory()
{
    malloc_trim(0);
    std::FILE* file = std::fopen("/proc/self/statm", "r");
    long total = 0;
    long resident = 0;
    const int read = file ? std::fscanf(file, "%ld %ld", &total, &resident) : 0;
    if (file)
        std::fclose(file);
    return read == 2 ? static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) : 0;
}

} // namespace

/// Prints what an open, coloured document of 11 MB takes above an empty editor, in sizes of the document.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    constexpr std::size_t size = 11'000'000;
    constexpr double limit = 5;

    QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("config.cpp")).toStdString();
    QtFileSystem files;
    TextFiles texts(files, windows1250());
    texts.write(path, bench::sampleConfig(size));
    const KeywordList keywords = bench::shippedKeywords();

    ScintillaControl control;
    ScintillaTextBox box(control, windows1250());
    control.resize(800, 600);
    control.show();
    QApplication::processEvents();
    const double before = residentMemory();
    box.loadText(withCrLf(*texts.read(path)));
    colourBox(box, keywords, EditorSettings());
    QApplication::processEvents();
    const double times = (residentMemory() - before) / static_cast<double>(size);
    std::printf("memory of an open, coloured document, in sizes of the document: %.2f  promised <= %.2f%s\n", times,
                limit, times <= limit ? "" : "  BROKEN");
    return times <= limit ? 0 : 1;
}
