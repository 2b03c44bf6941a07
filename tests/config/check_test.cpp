// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/check.h"

#include "support/scenario.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace kitwright {

namespace {

/// A small game, and an add-on's folder.
class World {
public:
    World()
    {
        m_game.add("CfgVehicles", "Car", m_game.add("CfgVehicles", "Land", m_game.add("CfgVehicles", "All", -1)));
        m_game.add("CfgWeapons", "MGun", m_game.add("CfgWeapons", "Default", -1));
        m_properties.addLines("armor,1\r\nmodel,2\r\npicture,3\r\nsound,4\r\n");
        for (const char* file : {"defs.hpp", "patches.hpp", "sub/more.hpp", "Gun.p3d", "pic.paa"})
            m_folder.addFile(file);
        m_folder.addKeys("LANGUAGE,English\r\n$STRM_A,a\r\n");
        m_files = {{"patches.hpp", "class CfgPatches { class P { units[] = {Listed}; }; };"}};
    }

    Surroundings surroundings() const
    {
        return {&m_game, &m_properties, &m_folder, [this](const std::string& path) {
                    const auto found = m_files.find(path);
                    return std::optional(found == m_files.end() ? std::string() : found->second);
                }};
    }

private:
    GameClasses m_game;
    PropertyKinds m_properties;
    AddonFolder m_folder{"Addon"};
    std::map<std::string, std::string> m_files;
};

const World world;

std::string idsIn(const FindingList& findings)
{
    std::string ids;
    for (const Finding& finding : findings.kept())
        ids.append(ids.empty() ? "" : " ").append(idOf(finding.kind()));
    return ids;
}

TEST(Check, FindsEachKindAndNothingNearIt)
{
    std::set<std::string> left(findingIds().begin(), findingIds().end());
    for (const auto& [id, faulty, fine] : testing::scenarioTable<3>("tables/findings.txt")) {
        const CheckedConfig checked = check(faulty, world.surroundings());
        EXPECT_EQ(idsIn(checked.findings), id) << faulty;
        EXPECT_EQ(idsIn(check(fine, world.surroundings()).findings), "") << fine;
        for (const Finding& finding : checked.findings.kept()) {
            const std::string mended = finding.mend.empty() ? fine : edited(faulty, finding.mend);
            EXPECT_EQ(idsIn(check(mended, world.surroundings()).findings), "") << mended;
        }
        left.erase(id);
    }
    EXPECT_TRUE(left.empty()) << *left.begin();
}

} // namespace

} // namespace kitwright
