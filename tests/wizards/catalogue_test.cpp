// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/catalogue.h"

#include "support/memory_file_system.h"
#include "wizards/addon_copy.h"
#include "wizards/node_level.h"

#include <gtest/gtest.h>

#include <utility>

namespace kitwright {

namespace {

TEST(Catalogue, BaseClassesAreSortedSoThatEachOneIsFound)
{
    std::vector<ListEntry> entries;
    for (const char* name : {"riffle", "_own", "M60", "Žlutá", "AK47", "m16", "RiffleGrenade", "žaba"})
        entries.push_back({name, 0, ""});
    const BaseClassList list(entries);
    std::string sorted;
    for (int i = 0; i < list.count(); ++i) {
        sorted.append(list.textAt(i)) += ' ';
        EXPECT_EQ(list.find(list.textAt(i)), i);
    }
    EXPECT_EQ(sorted, "AK47 m16 M60 riffle RiffleGrenade _own žaba Žlutá ");
    EXPECT_EQ(list.find("RIFFLE"), 3);
    EXPECT_EQ(list.find("ŽLUTÁ"), 7);
    EXPECT_EQ(list.find("nowhere"), -1);
    EXPECT_EQ(BaseClassList().find("x"), -1);
}

TEST(NodeLevel, IsTheNumberBehindTheMarker)
{
    const std::pair<const char*, int> cases[] = {
        {"VNORENI2gunBeg", 2},   {"4vnoreni17x", 17}, {"VNORENI", 0},
        {"VNORENIx1", 0},        {"none7", 0},        {"VNORENI-3", 0},
        {"VNORENI32767", 32767}, {"VNORENI32768", 0}, {"VNORENI99999999999", 0},
    };
    for (const auto& [text, number] : cases)
        EXPECT_EQ(DejCislo(text, "Vnoreni"), number) << text;
    EXPECT_EQ(nodeLevel("4VNORENI2gunBeg"), 2);
    EXPECT_EQ(nodeLevel("4VNORENI12ndGun"), 12);
}

TEST(AddonCopy, NothingIsWrittenOutsideTheDocumentsFolderOrOverTheDocument)
{
    testing::MemoryFileSystem files;
    for (const char* name : {"gun.p3d", "config.cpp", "STRINGTABLE.CSV", "locked.p3d"})
        files.files[std::string("/m/") + name] = "new";
    files.files["/addon/gun.p3d"] = files.files["/addon/Config.cpp"] = "old";
    files.unwritable = {"/addon/locked.p3d"};
    std::vector<FileCopy> copies = {{R"(\m\gun.p3d)", "gun.p3d"}};
    for (const char* name : {"..", ".", "", "config.cpp", "STRINGTABLE.CSV", "missing.p3d", "locked.p3d"})
        copies.push_back({std::string("/m/") + name, name});
    EXPECT_EQ(copyIntoAddon(files, "/addon/Config.cpp", copies).size(), copies.size() - 1);
    EXPECT_EQ(files.files["/addon/gun.p3d"], "new");
    EXPECT_EQ(files.files["/addon/Config.cpp"], "old");
    EXPECT_EQ(files.writes, 1);

    EXPECT_EQ(copyIntoAddon(files, "", copies).size(), copies.size());
    EXPECT_EQ(files.writes, 1);
}

TEST(AddonCopy, FileAddedAgainIsCopiedOnceAndLast)
{
    CopyPlan plan;
    for (const char* path : {"/a/x.jpg", "/b/x.jpg", "/a/x.jpg"})
        plan.add(path);
    EXPECT_EQ(plan.copies(), (std::vector<FileCopy>{{"/b/x.jpg", "x.jpg"}, {"/a/x.jpg", "x.jpg"}}));
}

} // namespace

} // namespace kitwright
