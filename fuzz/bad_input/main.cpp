// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "play.h"
#include "supervisor.h"

#include <QApplication>
#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace kitwright::badinput {

namespace {

QtMessageHandler previousHandler = nullptr;

/// The platform without a screen tells of every window that it cannot place or raise, and of a session that lacks.
void withoutPlatformNoise(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support"))
        && !text.startsWith(QLatin1String("QStandardPaths:")))
        previousHandler(type, context, text);
}

/// Keeps a case that runs away from taking the machine with it.
void setLimits()
{
    constexpr unsigned longest = 120; // s
    ::alarm(longest);
#ifndef __SANITIZE_ADDRESS__
    constexpr rlim_t mostMemory = 8ULL << 30;
    const rlimit limit{mostMemory, mostMemory};
    ::setrlimit(RLIMIT_AS, &limit);
#endif
}

const Surface* surfaceOf(const std::string& name)
{
    const auto found = std::find_if(surfaces().begin(), surfaces().end(),
                                    [&](const Surface& surface) { return surface.name == name; });
    return found == surfaces().end() ? nullptr : &*found;
}

/// The part of a process that plays one case.
int playHere(int argc, char** argv, const std::string& caseName, SizeFactor factor, const std::string& folder)
{
    setLimits();
    QApplication application(argc, argv);
    const std::size_t slash = caseName.find('/');
    const Surface* surface = surfaceOf(caseName.substr(0, slash));
    const auto bad = surface ? badContent(caseName.substr(slash + 1), surface->flavour, factor) : std::nullopt;
    if (!bad) {
        std::fprintf(stderr, "no case %s\n", caseName.c_str());
        return EXIT_FAILURE;
    }
    try {
        const std::string outcome = play(*surface, *bad, folder);
        tellOutcome(true, bad->size(), outcome);
        return EXIT_SUCCESS;
    } catch (const Fault& fault) {
        tellOutcome(false, bad->size(), fault.what());
    } catch (const std::bad_alloc&) {
        tellOutcome(false, bad->size(), "out of memory");
    }
    return EXIT_FAILURE;
}

/// The cases of which the name, "surface/kind", starts with one of the words; all when there is no word.
std::vector<Order> casesFor(const std::vector<std::string>& words)
{
    std::vector<Order> orders;
    for (const Surface& surface : surfaces()) {
        for (const std::string& kind : kindNames()) {
            const std::string name = surface.name + '/' + kind;
            const bool asked =
                words.empty() || std::any_of(words.begin(), words.end(), [&](const std::string& word) {
                    return name == word || name.starts_with(word + '/') || word == "*/" + kind;
                });
            constexpr SizeFactor tiny = 1e-6;
            if (asked && badContent(kind, surface.flavour, tiny))
                orders.push_back({surface.name, kind});
        }
    }
    return orders;
}

std::string sizeText(std::size_t bytes)
{
    constexpr double thousand = 1'000;
    const auto size = static_cast<double>(bytes);
    char text[32];
    if (bytes >= 1'000'000)
        std::snprintf(text, sizeof text, "%.1f MB", size / thousand / thousand);
    else if (bytes >= 10'000)
        std::snprintf(text, sizeof text, "%.0f kB", size / thousand);
    else
        std::snprintf(text, sizeof text, "%zu B", bytes);
    return text;
}

/// Prints the results as a Markdown table; the number of those that are not sound.
int printTable(const std::vector<Result>& results)
{
    int faults = 0;
    std::puts("| File | Bad input | Size | Outcome | Seconds | MB |\n|---|---|---|---|---|---|");
    for (const Result& result : results) {
        std::printf("| %s | %s | %s | %s%s | %.1f | %.0f |\n", result.surface.c_str(), result.kind.c_str(),
                    sizeText(result.bytes).c_str(), result.sound ? "" : "**FAULT** ", result.outcome.c_str(),
                    result.seconds, result.megabytes);
        faults += result.sound ? 0 : 1;
    }
    std::printf("\n%zu cases, %d not sound\n", results.size(), faults);
    return faults;
}

} // namespace

} // namespace kitwright::badinput

/// Plays bad input by the hundred: every file that the program reads, bad in every way that is known. Arguments:
/// [--size-factor F] [--at-once N] [SURFACE[/KIND] | */KIND]...
int main(int argc, char** argv)
{
    using namespace kitwright::badinput;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    previousHandler = qInstallMessageHandler(withoutPlatformNoise);
    std::vector<std::string> words(argv + 1, argv + argc);
    if (words.size() == 4 && words[0] == "--play")
        return playHere(argc, argv, words[1], std::atof(words[2].c_str()), words[3]);

    // Making the picture of the sound files needs no window, but the toolkit's plugins.
    const QGuiApplication application(argc, argv);
    SizeFactor factor = 1;
    unsigned atOnce = 1;
    for (std::size_t i = 0; i + 1 < words.size();) {
        if (words[i] == "--size-factor")
            factor = std::atof(words[i + 1].c_str());
        else if (words[i] == "--at-once")
            atOnce = words[i + 1] == "cores" ? std::max(1U, std::thread::hardware_concurrency())
                                             : static_cast<unsigned>(std::atoi(words[i + 1].c_str()));
        else {
            ++i;
            continue;
        }
        words.erase(words.begin() + static_cast<std::ptrdiff_t>(i),
                    words.begin() + static_cast<std::ptrdiff_t>(i) + 2);
    }
    const std::vector<Order> orders = casesFor(words);
    if (orders.empty()) {
        std::fputs("no such case\n", stderr);
        return EXIT_FAILURE;
    }
    return printTable(playAll(orders, factor, std::max(1U, atOnce))) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
