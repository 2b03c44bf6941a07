// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/class_block.h"

#include "support/blocks.h"
#include "support/input.h"
#include "support/target.h"

namespace kitwright::fuzzing {

namespace {

const std::vector<ListEntry> catalogue = {{"a", 0, ""}, {"b", 1, ""}, {"c", 2, ""}, {"d", 2, ""}};

ClassBlock blockOf(const std::vector<ClassRecord>& classes, std::string_view PatchClassName)
{
    ClassBlockInput input;
    input.blockName = "CfgWeapons";
    input.catalogue = catalogue;
    input.classes = classes;
    input.ticked.assign(classes.size(), true);
    input.PatchClassName = PatchClassName;
    // Half of the files are there; the harmless twin of a path has its length.
    input.fileExists = [](const std::string& path) { return path.size() % 2 == 0; };
    input.declarations = [](const std::string&) { return "   class B {};\r\n"; };
    return classBlock(input);
}

} // namespace

/// The first piece is the name of the add-on, the others are classes: name, base class, and the values of the
/// catalogue.
void tryInput(std::string_view bytes)
{
    Pieces pieces(bytes);
    const std::string addon = pieces.text();
    std::vector<ClassRecord> classes;
    std::vector<ClassRecord> twins;
    while (pieces.areLeft()) {
        const std::string name = pieces.text();
        const std::string base = pieces.text();
        classes.push_back({name, base, takeSettings(pieces, catalogue.size())});
        twins.push_back({harmless(name), harmless(base), harmless(classes.back().Properties)});
    }
    const ClassBlock block = blockOf(classes, addon);
    const ClassBlock twin = blockOf(twins, harmless(addon));
    checkShape(twin.text);
    checkTwin(block.text, twin.text);
    checkCopies(block.copies);
}

} // namespace kitwright::fuzzing
