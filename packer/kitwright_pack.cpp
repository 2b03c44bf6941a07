// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packer/run_command.h"
#include "platform/fatal_signals.h"
#include "platform/qt_file_streams.h"
#include "platform/qt_file_system.h"
#include "platform/qt_sha1.h"
#include "text/windows_1250.h"

#include <iostream>
#include <sstream>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

/// True when somebody looks at what is written to standard error.
bool isWatched()
{
#ifdef Q_OS_UNIX
    return ::isatty(STDERR_FILENO) == 1;
#else
    return false;
#endif
}

constexpr const char* clearLine = "\r     \r";

/// Shows the share that is done while it grows, and nothing more when all is done.
bool showPercent(std::uint64_t done, std::uint64_t total, std::uint64_t& shown)
{
    const std::uint64_t percent = 100 * done / total;
    if (done == total)
        std::cerr << clearLine << std::flush;
    else if (percent != shown)
        std::cerr << '\r' << percent << " %" << std::flush;
    shown = percent;
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    kitwright::ignoreFatalSignals();
    kitwright::QtFileSystem files;
    kitwright::QtFileStreams streams;
    kitwright::QtSha1 sha1;
    const kitwright::PackTools tools{files, streams, kitwright::windows1250(), sha1};

    std::uint64_t shown = 0;
    kitwright::Progress progress;
    if (isWatched())
        progress = [&](std::uint64_t done, std::uint64_t total) { return showPercent(done, total, shown); };
    const std::vector<std::string> words(argv + std::min(argc, 1), argv + argc);
    std::ostringstream error;
    const int status = kitwright::runCommand(words, tools, std::cout, error, progress);
    // Work that ended before its time has left the share on its line.
    if (shown != 0 && status != 0)
        std::cerr << clearLine;
    std::cerr << error.str();
    return status;
}
