// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/fatal_signals.h"
#include "platform/qt_file_system.h"
#include "platform/qt_text.h"
#include "platform/write_in_place.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

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
    const std::string longName(250, 'n'); // As long as leaves no room for the name of a temporary file.
    put(longName, "old");
    for (const mode_t mode : {0600U, 0755U, 0666U}) {
        ::chmod(at("old.txt").c_str(), mode);
        for (const std::string& bytes :
             {std::string("\0\r\n\x1A\xFF longer", 12), std::string("new"), std::string()}) {
            for (const std::string& name : {std::string("old.txt"), std::string("žluťoučký kůň.cpp"), longName}) {
                EXPECT_EQ(files.writeBytes(at(name), bytes), Failure());
                EXPECT_EQ(content(name), bytes);
                EXPECT_EQ(*files.readBytes(at(name)), bytes);
            }
        }
        EXPECT_EQ(fs::status(at("old.txt")).permissions(), fs::perms(mode));
    }
    EXPECT_EQ(entries(), 3);
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

TEST_F(Disk, FollowsLinksAsTheSystemDoes)
{
    for (const char* folder : {"data/deep/proj", "data/deep/shared", "home/shared"})
        fs::create_directories(at(folder));
    fs::create_directory_symlink("../data/deep/proj", at("home/project"));
    fs::create_symlink("../shared/config.cpp", at("data/deep/proj/config.cpp"));
    put("home/shared/config.cpp", "another's");
    const std::string path = at("home/project/config.cpp");
    for (const char* text : {"new", "replaced"}) {
        EXPECT_EQ(files.writeBytes(path, text), Failure());
        EXPECT_EQ(content("data/deep/shared/config.cpp"), text);
    }
    EXPECT_EQ(content("home/shared/config.cpp"), "another's");
    EXPECT_EQ(*files.realPath(path), fs::canonical(path));
    EXPECT_EQ(*files.realFolder(path), fs::canonical(at("data/deep/proj")));

    fs::create_symlink("b", at("a"));
    fs::create_symlink("a", at("b"));
    EXPECT_TRUE(files.writeBytes(at("a"), "new") && files.copyFile(path, at("b")));
    EXPECT_TRUE(fs::is_symlink(at("a")) && fs::is_symlink(at("b")));
}

TEST_F(Disk, ReadsToTheEndButNothingEndless)
{
    fs::resize_file(at("old.txt"), largestFile + 1);
    EXPECT_FALSE(files.readBytes(at("old.txt")));
    EXPECT_FALSE(files.readBytes("/proc/version")->empty()); // Tells a size of 0.
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
    rlimit before = {};
    ::getrlimit(RLIMIT_FSIZE, &before);
    ignoreFatalSignals();
    // A write that buffers take whole fails no sooner than when it ends.
    const std::pair<std::size_t, rlim_t> cases[] = {{200'000, 64 * 1024}, {5'000, 1024}};
    for (const auto& [size, limit] : cases) {
        const std::string bytes(size, 'x');
        put("new.txt", bytes);
        const rlimit full{limit, before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &full);
        const bool refused[] = {files.writeBytes(at("old.txt"), bytes).has_value(),
                                files.copyFile(at("new.txt"), at("old.txt")).has_value(),
                                !writeInPlace(toQt(at("old.txt")), bytes).isEmpty()};
        ::setrlimit(RLIMIT_FSIZE, &before);
        EXPECT_TRUE(refused[0] && refused[1] && refused[2]) << size;
        EXPECT_EQ(content("old.txt"), "old") << size;
        EXPECT_EQ(entries(), 2) << size;
    }
}

TEST_F(Disk, WritesInPlaceWhereTheFolderTakesNoNewFile)
{
    put("theirs.txt", "theirs");
    fs::create_directory(at("ours"));
    put("ours/theirs.txt", "theirs");
    for (const char* name : {"ours", "ours/theirs.txt"})
        ::chmod(at(name).c_str(), 0777);
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
    EXPECT_EQ(files.copyFile(at("theirs.txt"), at("old.txt")), Failure());
    EXPECT_EQ(content("old.txt"), "theirs");
    // A new file in the old one's place would be ours.
    EXPECT_EQ(files.writeBytes(at("ours/theirs.txt"), "shared"), Failure());
    EXPECT_TRUE(files.writeBytes(at("theirs.txt"), "mine") && files.writeBytes(at("new.txt"), "new"));
    ASSERT_TRUE(!isRoot || ::setresuid(0, 0, 0) == 0);
    ::chmod(at("").c_str(), 0755);
    EXPECT_EQ(content("theirs.txt"), "theirs");
    EXPECT_EQ(content("ours/theirs.txt"), "shared");
    struct stat shared = {};
    EXPECT_EQ(::stat(at("ours/theirs.txt").c_str(), &shared), 0);
    EXPECT_EQ(shared.st_uid, ::geteuid());
    EXPECT_EQ(entries(), 3);
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
    for (const char* folder : {"c\\d", "c", "c/d"})
        fs::create_directory(at(folder));
    for (const char* file : {"c\\d/new.txt", "c\\d\\other.txt"})
        EXPECT_EQ(files.writeBytes(at(file), "inside"), Failure());
    EXPECT_EQ(files.listFiles(at("c\\d"))->size(), 2);
    EXPECT_EQ(*files.listFiles(at("c/d")), Names());
}

} // namespace
} // namespace kitwright
