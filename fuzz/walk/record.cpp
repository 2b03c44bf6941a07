// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "record.h"

#include <QLoggingCategory>
#include <QString>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace kitwright::walking {

namespace {

constexpr int longestEvent = 60; // s

/// A crash and the desktop library's messages come without an object, so they find the record here.
std::atomic<Record*> current = nullptr;

void printLastOfCurrent()
{
    if (const Record* record = current.exchange(nullptr))
        record->printLast();
}

extern "C" void crashed(int signal)
{
    printLastOfCurrent();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void hear(QtMsgType, const QMessageLogContext& context, const QString& text)
{
    const std::string category = context.category ? context.category : "";
    // The platform without a screen tells of every window that it cannot place or raise; a one-line box, of a drag over
    // what an input method is still composing, which selects nothing.
    if (text.startsWith(QLatin1String("This plugin does not support"))
        || text == QLatin1String("QWidgetLineControl::setSelection: Invalid start position"))
        return;
    Record* record = current;
    if (!record)
        return;
    // A picture that is none is told of by its decoder, too.
    if (category.starts_with("kitwright.") || category.starts_with("qt.gui.imageio"))
        record->count("lines on standard error, " + category);
    else
        record->fail("the desktop library complains, " + category + ": " + text.toStdString());
}

void catchCrashes()
{
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(printLastOfCurrent);
    std::signal(SIGABRT, crashed);
#else
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT})
        std::signal(signal, crashed);
#endif
}

void say(const char* text)
{
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, text, std::strlen(text));
}

} // namespace

Record::Record(std::uint64_t seed, bool tracing)
    : m_seed(seed),
      m_tracing(tracing),
      m_watchdog([this](const std::stop_token& stop) { watch(stop); })
{
    current = this;
    catchCrashes();
    qInstallMessageHandler(hear);
}

Record::~Record()
{
    current = nullptr;
    qInstallMessageHandler(nullptr);
}

void Record::begin(const std::string& kind, const std::string& what)
{
    const std::size_t number = m_number + 1;
    std::array<char, lineLength>& line = m_last[number % kept];
    std::snprintf(line.data(), line.size(), "%6zu %s: %s", number, kind.c_str(), what.c_str());
    std::replace_if(
        line.begin(), line.end(), [](char letter) { return letter > 0 && letter < ' '; }, '.');
    if (m_tracing)
        std::printf("%s [%016llx]\n", line.data(), static_cast<unsigned long long>(m_fingerprint));
    ++m_kinds[kind];
    mix(line.data());
    m_number = number;
}

void Record::mix(std::string_view bytes)
{
    constexpr std::uint64_t prime = 1099511628211ULL;
    for (const char byte : bytes)
        m_fingerprint = (m_fingerprint ^ static_cast<unsigned char>(byte)) * prime;
}

void Record::fail(const std::string& reason)
{
    current = nullptr;
    std::fflush(stdout);
    say(("\nDOES NOT HOLD: " + reason + '\n').c_str());
    printLast();
    std::_Exit(1);
}

long Record::peakMegabytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

void Record::printLast() const
{
    std::array<char, lineLength> heading{};
    std::snprintf(heading.data(), heading.size(), "Seed %llu, event %zu; the last events:\n",
                  static_cast<unsigned long long>(m_seed), m_number.load());
    say(heading.data());
    for (std::size_t i = 1; i <= kept; ++i) {
        const char* line = m_last[(m_number + i) % kept].data();
        if (*line) {
            say(line);
            say("\n");
        }
    }
}

void Record::watch(const std::stop_token& stop)
{
    std::size_t seen = 0;
    for (int seconds = 0; !stop.stop_requested() && seconds < longestEvent * 10; ++seconds) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        if (m_number != seen)
            seconds = 0;
        seen = m_number;
    }
    if (stop.stop_requested())
        return;
    say("\nDOES NOT HOLD: an event takes longer than a minute\n");
    std::abort();
}

} // namespace kitwright::walking
