// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/catalogue.h"

#include "support/scenario.h"
#include "wizards/addon_copy.h"
#include "wizards/node_level.h"

#include <gtest/gtest.h>

namespace kitwright {

namespace {

TEST(Catalogue, BaseClassesAreSortedSoThatEachOneIsFound)
{
    const BaseClassList list(
        listEntries("riffle\r\n_own\r\nM60\r\nŽlutá\r\nAK47\r\nm16\r\nRiffleGrenade\r\nžaba\r\n"));
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
    for (const auto& [text, number] : testing::scenarioTable<2>("tables/node_level.txt"))
        EXPECT_EQ(std::to_string(DejCislo(text, "Vnoreni")), number) << text;
    EXPECT_EQ(nodeLevel("4VNORENI2gunBeg"), 2);
    EXPECT_EQ(nodeLevel("4VNORENI12ndGun"), 12);
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
