// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/colouring.h"
#include "bench.h"
#include "editor/scintilla_control.h"
#include "support/running_application.h"
#include "text/windows_1250.h"
#include "widgets/check_list.h"
#include "wizards/class_wizard.h"
#include "wizards/wizard_commands.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <fstream>
#include <malloc.h>
#include <map>
#include <unistd.h>

namespace kitwright::bench {

namespace {

/// The whole program, with documents that it can open.
struct Program : testing::RunningApplication {
    Program()
    {
        startWith();
        file("/small") = windows1250().encode(sampleConfig(10'000));
        file("/large") = windows1250().encode(sampleConfig(largeDocument));
        file("/misspelt") = windows1250().encode(misspelt(sampleConfig(largeDocument)));
    }

    /// From the accepted dialog until nothing is left to do.
    double open(const std::string& path)
    {
        dialogs.answers["open"] = {path};
        return timeOf([&] {
            use("cmdopen");
            QTest::qWait(50);
        });
    }

    double fullPass()
    {
        box().loadText(std::string(box().text()));
        return timeOf([&] { colourBox(box(), keywords(), state().Settings); });
    }

    /// The times of keys typed at a place, each with its paint and all else that it sets off.
    std::vector<double> keysAt(Position place)
    {
        auto& control = this->control<ScintillaControl>("configedit");
        control.setFocus();
        box().select(place, 0);
        control.ensureCursorVisible();
        QTest::qWait(50);
        std::vector<double> times;
        for (int key = 0; key < 400; ++key) {
            times.push_back(timeOf([&] {
                QTest::keyClick(&control, key % 8 == 7 ? Qt::Key_Space : Qt::Key_A);
                QApplication::processEvents();
            }));
        }
        return times;
    }
};

/// So many classes, each with 100 properties.
std::vector<ClassRecord> classesWith(const std::vector<ListEntry>& catalogue, std::size_t count)
{
    std::vector<ClassRecord> classes(count);
    for (std::size_t i = 0; i < count; ++i) {
        classes[i].Name = "BenchWeapon" + std::to_string(i);
        classes[i].BaseClass = i % 2 ? "M16" : "AK74SU";
        classes[i].Properties.assign(catalogue.size(), {"{1, 2, \"value\"}", true});
    }
    return classes;
}

/// The slowest click on one of 100 classes, with a catalogue of 5,000 properties.
double slowestClick(Program& program)
{
    std::string& catalogue = program.file("/program/Bfdata/kitwright/kitwrightweapon.dat");
    catalogue.clear();
    for (int property = 0; property < 5000; ++property)
        catalogue += "property" + std::to_string(property) + ",1; help\r\n";
    std::vector<ClassRecord> classes;
    ClassWizard wizard(weaponWizard, program.program().context(), classes);
    wizard.show();
    for (std::size_t number = 0; number < 100; ++number) {
        wizard.findChild<QPushButton*>(QStringLiteral("cmdadd"))->click();
        for (std::size_t property = number; property < 5000; property += 3)
            classes.back().Properties[property].Used = true;
    }
    double slowest = 0;
    for (int row = 0; row < 100; ++row) {
        slowest = std::max(slowest, timeOf([&] {
                               wizard.findChild<CheckList*>(QStringLiteral("List1"))->setCurrentRow(row);
                               QApplication::processEvents();
                           }));
    }
    return slowest;
}

/// Resident memory of this process, in bytes.
double residentMemory()
{
    malloc_trim(0);
    double total = 0;
    double resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

} // namespace

void measureMemory()
{
    Program program;
    program.open("/small");
    const double before = residentMemory();
    program.open("/large");
    promise(5, "memory of an open, coloured document of 11 MB, in sizes of the document",
            (residentMemory() - before) / static_cast<double>(largeDocument));
}

void measureKeys()
{
    constexpr const char* places[] = {"start", "middle", "end"};
    Program program;
    std::map<std::pair<std::string, std::string>, std::vector<double>> best; // By document and place.
    for (int round = 0; round < 5; ++round) {
        for (const char* document : {"/small", "/large"}) {
            program.open(document);
            const Position half = program.box().length() / 2;
            for (Position place = 0; place < 3; ++place) {
                const std::vector<double> seen = program.keysAt(place * half);
                auto& times = best.try_emplace({document, places[place]}, seen).first->second;
                std::transform(seen.begin(), seen.end(), times.begin(), times.begin(),
                               [](double left, double right) { return std::min(left, right); });
            }
        }
    }
    for (auto& [of, times] : best)
        std::sort(times.begin(), times.end());
    for (const std::string place : places) {
        const std::string what = "key with its paint at the " + place + " of 11 MB / of 10 kB, ";
        const auto ratio = [&](std::size_t key) {
            return best[{"/large", place}][key] / best[{"/small", place}][key];
        };
        promise(1.2, what + "median", ratio(200));
        promise(1.3, what + "95 of 100", ratio(380));
    }
}

void measureOpening()
{
    Program program;
    const auto times = quickest(7, {[&] { return program.open("/large"); }, [&] { return program.fullPass(); },
                                    [&] { return program.open("/misspelt"); }});
    promise(2.2, "opening 11 MB, from the accepted dialog until idle / a full pass", times[0] / times[1]);
    promise(1.5, "opening it with every third keyword misspelt / well spelt", times[2] / times[0]);
}

void measureWizards()
{
    Program app;
    app.state().PatchClassName = "Bench";
    Context& context = app.program().context();
    const std::string before = sampleConfig(5'000'000);
    std::vector<ListEntry> catalogue;
    for (int property = 0; property < 100; ++property)
        catalogue.push_back({"property" + std::to_string(property), 1, ""});
    const std::vector<ClassRecord> classes = classesWith(catalogue, 2000);
    const auto pressOk = [&](std::size_t count) {
        app.box().loadText(before);
        context.host->Uprav2();
        ClassOrder order;
        order.blockName = "CfgWeapons";
        order.patchList = "weapons[]";
        order.declareBases = true;
        order.catalogue = catalogue;
        order.classes = std::span(classes).first(count);
        return timeOf([&] { writeClasses(context, order); });
    };
    pressOk(1000);
    const std::string after(app.box().text());
    const auto pass = [&] {
        app.box().loadText(after);
        return timeOf([&] { context.host->Uprav2(); });
    };
    const auto times = quickest(5, {pass, [&] { return pressOk(1000); }, [&] { return pressOk(2000); }});
    promise(6, "OK with 1,000 classes of 100 properties into 5 MB / a full pass over it", times[1] / times[0]);
    promise(2.5, "OK with 2,000 classes / with 1,000", times[2] / times[1]);
    promise(50, "slowest click on one of 100 classes with 5,000 properties, milliseconds",
            1000 * slowestClick(app));
}

} // namespace kitwright::bench
