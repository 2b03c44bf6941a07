// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Kills the program at random moments while it saves and while a wizard writes, and looks at what is on the disk then.

#include "bad_input/program.h"

#include <QApplication>
#include <QListWidget>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <random>
#include <spawn.h>
#include <thread>
#include <unistd.h>

namespace kitwright::kills {

namespace {

using badinput::expect;
using badinput::Stage;

const std::string lastLine = "// The end\r\n";
constexpr std::size_t modelSize = 2'000'000;
constexpr std::array models = {"elsewhere/first/gun.p3d", "elsewhere/second/gun.p3d"};

/// A document of half a megabyte whose lines all bear its number.
std::string version(int number)
{
    const std::string line = "// This line belongs to version " + std::to_string(number) + "\r\n";
    std::string text;
    while (text.size() < 500'000)
        text += line;
    return text + lastLine;
}

std::string model(std::size_t which)
{
    return std::string(modelSize, static_cast<char>('a' + which));
}

/// Saves versions of the document in turn, each with and without a weapon whose model is copied, for ever.
[[noreturn]] void work(const Stage& stage)
{
    badinput::Program program(stage);
    program.start();
    program.openDocument(stage.path("addon/config.cpp"));
    program.use("mnuwizardgun");
    program.use("Option2", "Form1");
    program.use("cmdadd", "Form1");
    program.control<QListWidget>("List1", "Form1").setCurrentRow(0);
    program.type("txtname", "Form1", "MyGun");
    auto& properties = program.control<QListWidget>("List2", "Form1");
    QListWidgetItem* property = properties.findItems("model", Qt::MatchExactly).value(0);
    properties.setCurrentItem(property);
    property->setCheckState(Qt::Checked);
    std::puts("ready");
    std::fflush(stdout);
    for (int number = 0;; ++number) {
        program.application().mainWindow().configedit().setText(version(number));
        program.use("cmdsave");
        program.use("mnuwizardgun");
        program.control<>("txthodnota", "Form1").setProperty("text", toQt(stage.path(models[number % 2])));
        program.use("Command1", "Form1");
        program.use("cmdsave");
    }
}

/// What each file may hold after a kill at any moment. True when the document was saved before it.
bool lookAt(const Stage& stage)
{
    const std::string document = stage.read("addon/config.cpp");
    const bool saved = document != badinput::ordinaryDocument;
    if (saved) {
        const std::size_t digits = document.find_first_of("0123456789");
        expect(digits < document.size(), "the document is no version of it");
        const std::string whole = version(std::atoi(document.c_str() + digits));
        expect(document.starts_with(whole), "the document is torn");
        const std::string added = document.substr(whole.size());
        expect(added.empty() || (added.find("class MyGun") != added.npos && added.ends_with("};\r\n")),
               "the wizard's block is torn");
    }
    const std::string table = "addon/Stringtable.csv";
    expect(!stage.exists(table) || stage.read(table).ends_with("\r\n"), "the stringtable is torn");
    const std::string copied = stage.exists("addon/gun.p3d") ? stage.read("addon/gun.p3d") : model(0);
    expect(copied == model(0) || copied == model(1), "the model is torn");
    for (std::size_t which = 0; which < models.size(); ++which)
        expect(stage.read(models[which]) == model(which), "the author's model has changed");
    return saved;
}

/// Starts this program anew as one that works on the stage; returns once it does.
pid_t startWork(const std::string& folder)
{
    std::array<int, 2> pipe = {};
    expect(::pipe2(pipe.data(), O_CLOEXEC) == 0, "no pipe");
    std::string words[] = {"kills", "--work", folder};
    char* arguments[] = {words[0].data(), words[1].data(), words[2].data(), nullptr};
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, pipe[1], STDOUT_FILENO);
    pid_t process = -1;
    expect(::posix_spawn(&process, "/proc/self/exe", &actions, nullptr, arguments, environ) == 0, "no process");
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(pipe[1]);
    char ready = 0;
    const bool works = ::read(pipe[0], &ready, 1) == 1;
    ::close(pipe[0]);
    expect(works, "the program did not come to work");
    return process;
}

bool killOnce(const Stage& stage, const std::string& folder, std::chrono::microseconds after)
{
    const pid_t process = startWork(folder);
    std::this_thread::sleep_for(after);
    ::kill(process, SIGKILL);
    int status = 0;
    ::waitpid(process, &status, 0);
    expect(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL, "the program ended by itself");
    return lookAt(stage);
}

int run(int kills)
{
    namespace fs = std::filesystem;
    const fs::path folder = fs::temp_directory_path() / ("kitwright-kills-" + std::to_string(::getpid()));
    const Stage stage(folder);
    for (std::size_t which = 0; which < models.size(); ++which) {
        fs::create_directories(fs::path(stage.path(models[which])).parent_path());
        stage.write(models[which], model(which));
    }
    stage.write("addon/config.cpp", badinput::ordinaryDocument);
    std::mt19937 random(20260101);
    int number = 0;
    int saved = 0;
    try {
        for (; number < kills; ++number)
            saved += killOnce(stage, folder.string(), std::chrono::microseconds(random() % 400'000)) ? 1 : 0;
    } catch (const badinput::Fault& fault) {
        std::fprintf(stderr, "After kill %d: %s; see %s\n", number + 1, fault.what(), folder.c_str());
        return 1;
    }
    const auto isLeft = [](const fs::directory_entry& entry) {
        const std::string name = entry.path().filename();
        return name != "config.cpp" && name != "Stringtable.csv" && name != "gun.p3d";
    };
    const auto left = std::count_if(fs::directory_iterator(folder / "addon"), {}, isLeft);
    std::printf("%d kills, %d of them after a first save: nothing torn, %td temporary files left\n", kills, saved,
                left);
    fs::remove_all(folder);
    return 0;
}

} // namespace

} // namespace kitwright::kills

/// kills [COUNT]: 20 when not told.
int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc == 3 && std::strcmp(argv[1], "--work") == 0) {
        QApplication application(argc, argv);
        kitwright::kills::work(kitwright::badinput::Stage(argv[2]));
    }
    return kitwright::kills::run(argc > 1 ? std::atoi(argv[1]) : 20);
}
