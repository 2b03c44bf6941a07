// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/qt_file_system.h"
#include "platform/qt_text.h"
#include "platform/write_in_place.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace kitwright {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

/// A folder on the disk with "old.txt" in it.
struct Disk : ::testing::Test {
    Disk() { put("old.txt", "old"); }
    std::string at(const std::string& name) const { return fromQt(dir.path()) + '/' + name; }
    void put(const std::string& name, const std::string& bytes) const { std::ofstream(at(name)) << bytes; }
    std::string content(const std::string& name) const
    {
        std::ifstream file(at(name));
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// How many entries the folder has, with those that a failure would have left behind.
    auto entries() const { return std::distance(fs::directory_iterator(at("")), {}); }

    QTemporaryDir dir;
    QtFileSystem files;
};

TEST_F(Disk, ReplacesFilesAndKeepsTheirModes)
{
    for (const mode_t mode : {0600U, 0755U, 0666U}) {
        ::chmod(at("old.txt").c_str(), mode);
        for (const std::string& bytes :
             {std::string("\0\r\n\x1A\xFF longer", 12), std::string("new"), std::string()}) {
            for (const char* name : {"old.txt", "žluťoučký kůň.cpp"}) {
                EXPECT_EQ(files.writeBytes(at(name), bytes), Failure());
                EXPECT_EQ(content(name), bytes);
                EXPECT_EQ(*files.readBytes(at(name)), bytes);
            }
        }
        EXPECT_EQ(fs::status(at("old.txt")).permissions(), fs::perms(mode));
    }
    EXPECT_EQ(entries(), 2);
}

TEST_F(Disk, WritesThroughLinksAndLeavesAFileCopiedOntoItself)
{
    fs::create_symlink("old.txt", at("link"));
    fs::create_symlink("link", at("chain"));
    fs::create_symlink("missing.txt", at("dangling"));
    const std::string big(3'000'000, 'x');
    EXPECT_EQ(files.writeBytes(at("chain"), big), Failure());
    for (const char* same : {"old.txt", "./old.txt", "link"})
        EXPECT_EQ(files.copyFile(at("chain"), at(same)), Failure());
    EXPECT_EQ(content("old.txt"), big);
    put("older.txt", "older");
    EXPECT_FALSE(files.fileExists(at("dangling")));
    for (const char* copy : {"dangling", "older.txt"})
        EXPECT_EQ(files.copyFile(at("link"), at(copy)), Failure());
    EXPECT_EQ(content("missing.txt"), big);
    EXPECT_EQ(content("older.txt"), big);
    for (const char* link : {"link", "chain", "dangling"})
        EXPECT_TRUE(fs::is_symlink(at(link))) << link;
}

TEST_F(Disk, RefusesWhatIsNoRegularFile)
{
    fs::create_directory(at("folder"));
    fs::create_directory_symlink("folder", at("link"));
    ASSERT_EQ(::mkfifo(at("pipe").c_str(), 0600), 0); // Opening it would wait for ever.
    for (const std::string& path :
         Names{at("folder"), at("link"), at("pipe"), at("no/file"), at("old.txt/file"), ""}) {
        EXPECT_FALSE(files.fileExists(path) || files.readBytes(path)) << path;
        EXPECT_TRUE(files.writeBytes(path, "new")) << path;
        EXPECT_TRUE(files.copyFile(at("old.txt"), path) && files.copyFile(path, at("old.txt"))) << path;
    }
    EXPECT_EQ(content("old.txt"), "old");
    EXPECT_EQ(entries(), 4);
}

TEST_F(Disk, LeavesTheOldFileWholeWhenTheDiskIsFull)
{
    const std::string big(200'000, 'x');
    put("big.txt", big);
    rlimit before = {};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit full{64 * 1024, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &full);
    const bool refused[] = {files.writeBytes(at("old.txt"), big).has_value(),
                            files.copyFile(at("big.txt"), at("old.txt")).has_value(),
                            !writeInPlace(toQt(at("old.txt")), big).isEmpty()};
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_TRUE(refused[0] && refused[1] && refused[2]);
    EXPECT_EQ(content("old.txt"), "old");
    EXPECT_EQ(entries(), 2);
}

TEST_F(Disk, WritesInPlaceWhereTheFolderTakesNoNewFile)
{
    put("theirs.txt", "theirs");
    ::chmod(at("old.txt").c_str(), 0666);
    ::chmod(at("theirs.txt").c_str(), 0444);
    ::chmod(at("").c_str(), 0555);
    // Root may write everywhere, so it becomes an ordinary user for a while.
    const bool isRoot = ::geteuid() == 0;
    if (isRoot && ::setresuid(65534, 65534, 0) != 0)
        GTEST_SKIP() << "needs the rights of an ordinary user";
    for (const char* text : {"longer than before", "short"}) {
        EXPECT_EQ(files.writeBytes(at("old.txt"), text), Failure());
        EXPECT_EQ(content("old.txt"), text);
    }
    EXPECT_TRUE(files.writeBytes(at("theirs.txt"), "mine") && files.writeBytes(at("new.txt"), "new"));
    ASSERT_TRUE(!isRoot || ::setresuid(0, 0, 0) == 0);
    ::chmod(at("").c_str(), 0755);
    EXPECT_EQ(content("theirs.txt"), "theirs");
    EXPECT_EQ(entries(), 2);
}

TEST_F(Disk, ListsFoldersAndTakesABackslashAsSeparator)
{
    for (const char* folder : {"beta", "Alpha", "gamma", ".hidden"})
        fs::create_directory(at(folder));
    EXPECT_EQ(*files.listFolders(at("")), (Names{"Alpha", "beta", "gamma"}));
    EXPECT_EQ(files.writeBytes(at("beta\\file.txt"), "inside"), Failure());
    EXPECT_EQ(*files.listFiles(at("\\beta")), Names{"file.txt"});
    EXPECT_EQ(*files.listFiles(at("gamma")), Names());
    EXPECT_FALSE(files.listFiles(at("missing")) || files.listFolders(at("old.txt")));
    put("a\\b", "bears the name as it stands");
    EXPECT_EQ(*files.readBytes(at("a\\b")), "bears the name as it stands");
}

} // namespace
} // namespace kitwright
