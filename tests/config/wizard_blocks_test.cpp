// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/starting_text.h"
#include "config/check.h"
#include "services/class_declarations.h"
#include "services/game_classes.h"
#include "support/scenario.h"
#include "wizards/class_block.h"
#include "wizards/face_block.h"
#include "wizards/vehicle_block.h"

#include <gtest/gtest.h>

namespace kitwright {

namespace {

std::string shipped(const std::string& file)
{
    return testing::scenarioText("../../data/Bfdata/kitwright/" + file);
}

std::string valueFor(std::string_view property)
{
    return property.ends_with("[]") ? "{1, \"x\"}" : "1";
}

/// What the wizards write of the shipped catalogues, with all properties of all of them.
class Wizards {
public:
    Wizards() { addTreeLines(shipped("configclass.dat"), m_classes); }

    KeywordTree& classes() { return m_classes; }

    /// Base classes that have ancestors to declare, or those that have none.
    std::vector<std::string> bases(const std::string& list, bool haveAncestors) const
    {
        std::vector<std::string> found;
        for (const ListEntry& entry : listEntries(shipped(list))) {
            if (baseClassDeclarations(m_classes, entry.text).value_or("").empty() != haveAncestors)
                found.push_back(entry.text);
        }
        return found;
    }

    std::string classes(const std::string& heading, const std::string& catalogue,
                        const std::vector<std::string>& bases) const
    {
        const std::vector<ListEntry> entries = listEntries(shipped(catalogue));
        std::vector<ClassRecord> records;
        for (const std::string& base : bases) {
            records.push_back({"My" + base, base, {}});
            for (const ListEntry& entry : entries)
                records.back().Properties.push_back({valueFor(entry.text), true});
        }
        return classBlock({heading,
                           entries,
                           records,
                           "MyAddon",
                           {},
                           [this](const std::string& base) { return baseClassBlock(m_classes, base); }})
            .text;
    }

    std::string vehicle(const std::string& base) const
    {
        KeywordTree tree;
        addTreeLines(shipped("kitwrightvehicles.dat"), tree);
        std::vector<VehicleProperty> properties(1);
        for (const TreeNode& node : tree.nodes())
            properties.push_back({"", valueFor(node.text), true});
        const std::string name = "My" + base;
        const std::string declarations = baseClassBlock(m_classes, base);
        return "\r\n" + vehicleBlock({name, base, declarations, tree, properties}) + "\r\n";
    }

    static std::string faces()
    {
        const std::vector<ListEntry> entries = listEntries(shipped("Kitwrightface.dat"));
        std::vector<FaceRecord> faces = {{{}, "MyFace"}};
        for (const ListEntry& entry : entries)
            faces[0].Properties.push_back({valueFor(entry.text), true});
        return faceBlock(entries, faces);
    }

private:
    KeywordTree m_classes;
};

TEST(Check, FindsNothingInWhatTheWizardsWrite)
{
    Wizards wizards;
    const GameClasses game = gameClasses(wizards.classes());
    PropertyKinds kinds;
    kinds.addLines(shipped("configkinds.dat"));
    const AddonFolder folder("MyAddon");
    const Surroundings surroundings = {&game, &kinds, &folder, {}};

    for (const bool haveAncestors : {true, false}) {
        std::string text = startingText("MyAddon", "1.75");
        text +=
            wizards.classes("CfgWeapons", "kitwrightweapon.dat", wizards.bases("addweapons.dat", haveAncestors));
        text += wizards.classes("CfgAmmo", "kitwrightammo.dat", wizards.bases("addammo.dat", haveAncestors));
        for (const std::string& base : wizards.bases("addvehicles.dat", haveAncestors))
            text += wizards.vehicle(base);
        text += Wizards::faces();
        CheckedConfig checked = check(text, surroundings);
        // Nothing declares a class without ancestors; mends do.
        for (int i = 0; i < 10 && !haveAncestors && checked.findings.count() > 0; ++i) {
            EXPECT_EQ(checked.findings.kept()[0].kind(), FindingKind::UndeclaredBase);
            text = edited(text, checked.findings.kept()[0].mend);
            checked = check(text, surroundings);
        }
        for (const Finding& finding : checked.findings.kept())
            ADD_FAILURE() << textOf(finding) << ": " << text.substr(finding.range.start, 60);
    }
}

} // namespace

} // namespace kitwright
