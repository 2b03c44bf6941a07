// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/application.h"
#include "app/colouring.h"
#include "platform/qt_dialogs.h"
#include "platform/qt_file_system.h"
#include "platform/qt_program_launcher.h"
#include "support/ratios.h"
#include "support/sample.h"
#include "text/windows_1250.h"
#include "widgets/check_list.h"
#include "wizards/class_wizard.h"
#include "wizards/wizard_commands.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>

#include <algorithm>

namespace {

using namespace kitwright;

constexpr std::size_t documentSize = 5'000'000;
constexpr int propertyCount = 100;

/// The whole program on a program folder of its own, started without a language to ask for.
class Program {
public:
    Program()
    {
        QDir(m_folder.path()).mkpath(QStringLiteral("Bfdata/kitwright"));
        const QString source = QStringLiteral(KITWRIGHT_TOP "/data/Bfdata/kitwright/");
        for (const QString& name : QDir(source).entryList(QDir::Files))
            QFile::copy(source + name, m_folder.filePath(QStringLiteral("Bfdata/kitwright/") + name));
        SaveSettings(files, windows1250(), m_folder.filePath(QStringLiteral("Kitwright.cfg")).toStdString(), {});
        application.start();
    }

private:
    QTemporaryDir m_folder;

public:
    QtFileSystem files;
    TextFiles texts{files, windows1250()};
    QtDialogs dialogs;
    QtProgramLauncher launcher;
    Application application{files, texts, dialogs, launcher, m_folder.path().toStdString()};
};

/// Ticked classes with ticked properties, as the window would hand them over.
struct Order {
    explicit Order(int classCount)
    {
        for (int property = 0; property < propertyCount; ++property)
            catalogue.push_back({"property" + std::to_string(property), 1, ""});
        for (int number = 0; number < classCount; ++number) {
            ClassRecord record;
            record.Name = "BenchWeapon" + std::to_string(number);
            record.BaseClass = number % 2 ? "M16" : "AK74SU";
            record.Properties.assign(propertyCount, {"{1, 2, \"value\"}", true});
            classes.push_back(std::move(record));
        }
        order.target = AddonTarget::CurrentAddon;
        order.patchList = "weapons[]";
        order.blockName = "CfgWeapons";
        order.catalogue = catalogue;
        order.classes = classes;
        order.declareBases = true;
    }

    std::vector<ListEntry> catalogue;
    std::vector<ClassRecord> classes;
    ClassOrder order;
};

void pressOk(benchmark::State& state, int classCount)
{
    Program program;
    Context& context = program.application.context();
    context.state.PatchClassName = "Bench";
    const std::string text = bench::sampleConfig(documentSize);
    const Order order(classCount);
    auto& box = dynamic_cast<ScintillaTextBox&>(context.host->configedit());
    for (auto _ : state) {
        state.PauseTiming();
        box.loadText(text);
        context.host->Uprav2();
        state.ResumeTiming();
        writeClasses(context, order.order);
    }
}

void ok1000Classes(benchmark::State& state)
{
    pressOk(state, 1000);
}
BENCHMARK(ok1000Classes)->Unit(benchmark::kMillisecond)->Repetitions(3);

void ok2000Classes(benchmark::State& state)
{
    pressOk(state, 2000);
}
BENCHMARK(ok2000Classes)->Unit(benchmark::kMillisecond)->Repetitions(3);

/// One full pass over the document that 1,000 classes leave.
void passOver1000Classes(benchmark::State& state)
{
    Program program;
    Context& context = program.application.context();
    context.state.PatchClassName = "Bench";
    context.host->configedit().loadText(bench::sampleConfig(documentSize));
    writeClasses(context, Order(1000).order);
    const std::string text(context.host->configedit().text());
    for (auto _ : state) {
        state.PauseTiming();
        context.host->configedit().loadText(text);
        state.ResumeTiming();
        context.host->Uprav2();
    }
}
BENCHMARK(passOver1000Classes)->Unit(benchmark::kMillisecond)->Repetitions(5);

/// The slowest click on one of 100 classes, with a catalogue of 5,000 properties.
void slowestClick(benchmark::State& state)
{
    Program program;
    Context& context = program.application.context();
    std::vector<ClassRecord> classes;
    for (auto _ : state) {
        QDir().mkpath(QString::fromStdString(context.state.programFolder + "/Bfdata/kitwright"));
        std::string lines;
        for (int property = 0; property < 5000; ++property)
            lines += "property" + std::to_string(property) + ",1; help\r\n";
        context.texts.write(context.inProgramFolder("/Bfdata/kitwright/kitwrightweapon.dat"), lines);
        ClassWizard wizard(weaponWizard, context, classes);
        wizard.show();
        auto* list = wizard.findChild<CheckList*>(QStringLiteral("List1"));
        auto* add = wizard.findChild<QPushButton*>(QStringLiteral("cmdadd"));
        for (int number = 0; number < 100; ++number) {
            add->click();
            for (std::size_t property = static_cast<std::size_t>(number); property < 5000; property += 3)
                classes.back().Properties[property].Used = true;
        }
        double slowest = 0;
        for (int row = 0; row < 100; ++row) {
            const double before = bench::processorTime();
            list->setCurrentRow(row);
            QApplication::processEvents();
            slowest = std::max(slowest, bench::processorTime() - before);
        }
        state.SetIterationTime(slowest);
    }
}
BENCHMARK(slowestClick)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return bench::runAndCompare(
        argc, argv,
        {
            {"OK with 1,000 classes of 100 properties / a full pass over the result", "ok1000Classes",
             "passOver1000Classes", 6, false},
            {"OK with 2,000 classes / with 1,000", "ok2000Classes", "ok1000Classes", 2.5, false},
        });
}
