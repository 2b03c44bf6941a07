// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/queries.h"

#include "support/scenario.h"

#include <gtest/gtest.h>

namespace kitwright {

namespace {

std::string pathIn(const Tree& tree, std::uint32_t offset)
{
    std::string path;
    for (const NodeIndex node : classPath(tree, offset))
        path.append(path.empty() ? "" : "/").append(tree.nameOf(node));
    return path;
}

TEST(Queries, CaretTellsTheClassesAroundItAndWhatANameMeans)
{
    for (const auto& [marked, path, name, declared] : testing::scenarioTable<4>("tables/class_paths.txt")) {
        std::string text = marked;
        const auto caret = static_cast<std::uint32_t>(text.find('|'));
        text.erase(caret, 1);
        const Sources sources(text, {});
        const Tree& tree = sources.main().tree;
        EXPECT_EQ(pathIn(tree, caret), path) << marked;
        const std::optional<NodeIndex> found = declarationOf(tree, caret, name);
        EXPECT_EQ(found ? std::to_string(tree.rangeOf(*found).start) : "", declared) << marked;
    }
}

TEST(Queries, PatchClassIsFoundWhateverTheLayoutAndInIncludes)
{
    AddonFolder folder("Addon");
    folder.addFile("patch.hpp");
    const Surroundings surroundings = {nullptr, nullptr, &folder, [](const std::string&) {
                                           return std::optional<std::string>("class CfgPatches{class Inner{};};");
                                       }};
    const auto nameIn = [&](std::string_view text) {
        return patchClassName(Sources(text, surroundings)).value_or("none");
    };
    EXPECT_EQ(nameIn("// class CfgPatches { class No {};};\nclass A { class CfgPatches { class No {};};};\n"
                     "CLASS cfgpatches\n{\n\tclass\tMine{\n\t\tunits[] = {\"A\", B};"),
              "Mine");
    EXPECT_EQ(nameIn("#include \"PATCH.hpp\"\nclass CfgVehicles {};"), "Inner");
    EXPECT_EQ(nameIn("class CfgPatches {};"), "none");

    const Sources sources("class CfgPatches { class P { weapons[]={}; units[] =\n{\"A\", B , /* C */ \"\"}; }; };",
                          {});
    const Tree& tree = sources.main().tree;
    EXPECT_EQ(arrayItems(tree, patchList(tree, "UNITS").value_or(0)), (std::vector<std::string>{"A", "B", ""}));
    EXPECT_EQ(patchList(tree, "worlds"), std::nullopt);
    std::string names;
    for (const OutlineEntry& entry : outline(tree))
        names.append(static_cast<std::size_t>(entry.level), '>')
            .append(tree.tokens().slice(entry.name))
            .append(" ");
    EXPECT_EQ(names, "CfgPatches >P ");
}

} // namespace

} // namespace kitwright
