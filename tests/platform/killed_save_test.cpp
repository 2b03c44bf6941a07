// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/qt_file_system.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <random>
#include <set>
#include <thread>
#include <unistd.h>

namespace kitwright {
namespace {

/// Saves the versions in turn until it is killed.
[[noreturn]] void saveForEver(const std::string& path, const std::vector<std::string>& versions)
{
    QtFileSystem files;
    for (std::size_t round = 0;; ++round) {
        if (files.writeBytes(path, versions[round % versions.size()]))
            _exit(1);
    }
}

TEST(KilledSave, LeavesAnOldOrANewFileWheneverItIsKilled)
{
    const QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("config.cpp")).toStdString();
    const std::vector<std::string> versions = {std::string(3'000'000, 'a'), std::string(2'000'000, 'b'), "short"};
    const std::set<std::string> whole(versions.begin(), versions.end());
    QtFileSystem files;
    ASSERT_FALSE(files.writeBytes(path, versions.front()));

    constexpr int kills = 200;
    constexpr int longestLife = 30'000; // µs: several saves
    std::mt19937 random(20260101);
    for (int kill = 0; kill < kills; ++kill) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0)
            saveForEver(path, versions);
        std::this_thread::sleep_for(std::chrono::microseconds(random() % longestLife));
        ::kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status)) << "a save failed";
        const auto bytes = files.readBytes(path);
        ASSERT_TRUE(bytes) << bytes.reason();
        ASSERT_TRUE(whole.contains(*bytes)) << "torn after kill " << kill << ": " << bytes->size() << " bytes";
    }
}

} // namespace
} // namespace kitwright
