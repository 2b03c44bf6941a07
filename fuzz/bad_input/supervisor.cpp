// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "supervisor.h"

#include <sys/resource.h>
#include <sys/wait.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <spawn.h>
#include <sstream>
#include <thread>
#include <unistd.h>

namespace kitwright::badinput {

namespace {

namespace fs = std::filesystem;

/// A folder that goes with everything in it.
class TemporaryFolder {
public:
    TemporaryFolder()
    {
        std::string name = (fs::temp_directory_path() / "kitwright-bad-input-XXXXXX").string();
        m_path = ::mkdtemp(name.data());
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string path(const char* name) const { return (m_path / name).string(); }

private:
    fs::path m_path;
};

/// Starts this program anew for one case; its output goes to files of the folder.
pid_t startCase(const Order& order, SizeFactor factor, const TemporaryFolder& folder)
{
    std::string words[] = {"bad_inputs", "--play", order.surface + '/' + order.kind, std::to_string(factor),
                           folder.path("stage")};
    char* arguments[] = {words[0].data(), words[1].data(), words[2].data(),
                         words[3].data(), words[4].data(), nullptr};
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    constexpr int flags = O_CREAT | O_WRONLY | O_TRUNC;
    ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, folder.path("out").c_str(), flags, 0600);
    ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, folder.path("err").c_str(), flags, 0600);
    pid_t process = -1;
    if (::posix_spawn(&process, "/proc/self/exe", &actions, nullptr, arguments, environ) != 0)
        process = -1;
    ::posix_spawn_file_actions_destroy(&actions);
    return process;
}

void takeOutcome(std::istream& out, Result& result)
{
    std::string verdict;
    out >> verdict >> result.bytes;
    std::getline(out >> std::ws, result.outcome);
    result.sound = verdict == "sound";
}

/// A failed step leaves a line of its own on standard error, and there are never many of them; a picture's decoder says
/// for itself what it did not like. Anything else there is a fault.
void judgeErrors(std::istream& errors, Result& result)
{
    constexpr int handful = 8;
    constexpr std::size_t longest = 1'200;
    int lines = 0;
    for (std::string line; std::getline(errors, line); ++lines) {
        const bool known = line.starts_with("kitwright.") || line.starts_with("qt.gui.imageio.jpeg:");
        if (result.sound && (!known || line.size() > longest || lines == handful)) {
            result.sound = false;
            result.outcome = "on standard error: " + line.substr(0, 200);
        }
    }
}

std::string endOf(int status)
{
    if (!WIFSIGNALED(status))
        return "ended with " + std::to_string(WEXITSTATUS(status));
    return WTERMSIG(status) == SIGALRM ? "killed after 120 s"
                                       : std::string("died: ") + ::strsignal(WTERMSIG(status));
}

Result playOne(const Order& order, SizeFactor factor)
{
    Result result;
    result.surface = order.surface;
    result.kind = order.kind;
    const TemporaryFolder folder;
    const auto begin = std::chrono::steady_clock::now();
    const pid_t process = startCase(order, factor, folder);
    int status = 0;
    rusage usage = {};
    if (process < 0 || ::wait4(process, &status, 0, &usage) != process) {
        result.outcome = "could not be started";
        return result;
    }
    result.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    result.megabytes = static_cast<double>(usage.ru_maxrss) / 1024;
    std::ifstream out(folder.path("out"));
    takeOutcome(out, result);
    if (result.outcome.empty() || !WIFEXITED(status) || (result.sound && WEXITSTATUS(status) != 0)) {
        result.sound = false;
        result.outcome = endOf(status);
    }
    std::ifstream errors(folder.path("err"));
    judgeErrors(errors, result);
    return result;
}

} // namespace

std::vector<Result> playAll(const std::vector<Order>& orders, SizeFactor factor, unsigned atOnce)
{
    std::vector<Result> results(orders.size());
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t i = next++; i < orders.size(); i = next++) {
            results[i] = playOne(orders[i], factor);
            std::fprintf(stderr, "%s/%s: %s%s, %.1f s, %.0f MB\n", orders[i].surface.c_str(),
                         orders[i].kind.c_str(), results[i].sound ? "" : "FAULT: ", results[i].outcome.c_str(),
                         results[i].seconds, results[i].megabytes);
        }
    };
    std::vector<std::thread> workers;
    for (unsigned worker = 0; worker < atOnce; ++worker)
        workers.emplace_back(work);
    for (std::thread& worker : workers)
        worker.join();
    return results;
}

void tellOutcome(bool sound, std::size_t bytes, const std::string& outcome)
{
    std::printf("%s %zu %s\n", sound ? "sound" : "fault", bytes, outcome.c_str());
    std::fflush(stdout);
}

} // namespace kitwright::badinput
