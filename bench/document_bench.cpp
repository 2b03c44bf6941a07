// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/scintilla_control.h"
#include "editor/scintilla_text_box.h"
#include "platform/qt_file_system.h"
#include "support/ratios.h"
#include "support/sample.h"
#include "text/text_files.h"
#include "text/windows_1250.h"

#include <QApplication>
#include <QFile>
#include <QPlainTextEdit>
#include <QTemporaryDir>

namespace {

using namespace kitwright;

constexpr std::size_t largeDocument = 11'000'000;

/// An 11 MB document on the disk.
class Document {
public:
    Document()
    {
        m_text = bench::sampleConfig(largeDocument);
        if (texts.write(path(), m_text))
            std::abort();
    }

    std::string path() const { return m_folder.filePath(QStringLiteral("config.cpp")).toStdString(); }
    std::string otherPath() const { return m_folder.filePath(QStringLiteral("saved.cpp")).toStdString(); }
    const std::string& text() const { return m_text; }

    QtFileSystem files;
    TextFiles texts{files, windows1250()};

private:
    QTemporaryDir m_folder;
    std::string m_text;
};

Document& document()
{
    static Document instance;
    return instance;
}

void open(benchmark::State& state)
{
    ScintillaControl control;
    ScintillaTextBox box(control, windows1250());
    for (auto _ : state)
        box.loadText(withCrLf(*document().texts.read(document().path())));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(largeDocument));
}
BENCHMARK(open)->Unit(benchmark::kMillisecond)->Repetitions(5);

void save(benchmark::State& state)
{
    ScintillaControl control;
    ScintillaTextBox box(control, windows1250());
    box.loadText(document().text());
    for (auto _ : state)
        document().texts.write(document().otherPath(), box.text());
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(largeDocument));
}
BENCHMARK(save)->Unit(benchmark::kMillisecond)->Repetitions(5);

void plainRead(benchmark::State& state)
{
    for (auto _ : state) {
        QFile file(QString::fromStdString(document().path()));
        file.open(QIODevice::ReadOnly);
        benchmark::DoNotOptimize(file.readAll().size());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(largeDocument));
}
BENCHMARK(plainRead)->Unit(benchmark::kMillisecond)->Repetitions(5);

void plainWrite(benchmark::State& state)
{
    const QByteArray bytes = QByteArray::fromStdString(document().text());
    for (auto _ : state) {
        QFile file(QString::fromStdString(document().otherPath()));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(largeDocument));
}
BENCHMARK(plainWrite)->Unit(benchmark::kMillisecond)->Repetitions(5);

void plainTextEdit(benchmark::State& state)
{
    const QString text = QString::fromStdString(document().text());
    QPlainTextEdit editor;
    for (auto _ : state)
        editor.setPlainText(text);
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(largeDocument));
}
BENCHMARK(plainTextEdit)->Unit(benchmark::kMillisecond)->Repetitions(3);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return bench::runAndCompare(argc, argv,
                                {
                                    {"open / plain file read", "open", "plainRead", 0, false},
                                    {"save / plain file write", "save", "plainWrite", 0, false},
                                    {"QPlainTextEdit's load / open", "plainTextEdit", "open", 0, true},
                                });
}
