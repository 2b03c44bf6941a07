// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "contents.h"
#include "program.h"
#include "stage.h"

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright::badinput {

/// What a case is played with.
struct Play {
    Stage& stage;
    Program& program;
    const std::string& bad; ///< What the bad file holds.
};

/// A file that the program reads.
struct Surface {
    std::string name;
    std::string place; ///< Of the file, on the stage.
    Flavour flavour;

    /// Uses the started program in the way that reads the file, faults where something is not as it should be, and
    /// tells in a few words what became of the file.
    std::function<std::string(Play&)> use;

    std::set<std::string> mayChange = {}; ///< Besides the document, its stringtable and the settings.
};

const std::vector<Surface>& surfaces();

/// Plays a case in an empty folder: puts the bad file in place, starts the program, uses it, does ordinary work on the
/// document afterwards, and starts it again. Gives the outcome in a few words; throws `Fault`.
std::string play(const Surface& surface, const std::string& bad, const std::string& folder);

std::string useDocument(Play& play);
std::string useStringtable(Play& play);
std::string useSettings(Play& play);
std::string useLanguage(Play& play);
std::string useClasses(Play& play);
std::string useCommands(Play& play);
std::string useWeapons(Play& play);
std::string useBaseClasses(Play& play);
std::string useVehicles(Play& play);
std::string useFaces(Play& play);
std::string useLanguages(Play& play);
std::string usePicture(Play& play);
std::string useModel(Play& play);

/// Opens the document of the stage and saves it untouched; tells what that did to the file. Then types a word in front
/// of it and saves again. A document that the program does not open must stay as it is, and the editor usable.
std::string editDocument(Play& play);

} // namespace kitwright::badinput
