// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "play.h"

namespace kitwright::badinput {

std::string play(const Surface& surface, const std::string& bad, const std::string& folder)
{
    Stage stage(folder);
    stage.write(surface.place, bad);
    stage.remember();

    Program program(stage);
    Play play{stage, program, bad};
    program.start();
    std::string outcome = surface.use(play);
    const std::string edited = editDocument(play);
    program.close();

    const std::string saved = stage.read("addon/config.cpp");
    program.start();
    if (program.openDocument(stage.path("addon/config.cpp")))
        program.use("cmdsave");
    expect(stage.read("addon/config.cpp") == saved, "the edited document is not what the next start finds");
    program.close();

    std::set<std::string> mayChange = {"addon/config.cpp", "addon/Stringtable.csv", "program/Kitwright.cfg"};
    mayChange.insert(surface.mayChange.begin(), surface.mayChange.end());
    stage.expectOnlyChanged(mayChange);
    return outcome.empty() ? edited : outcome;
}

} // namespace kitwright::badinput
