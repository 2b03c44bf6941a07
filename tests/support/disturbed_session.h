// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/session.h"

namespace kitwright::testing {

/// A session in which something goes wrong, held to what is true whatever happens. Each write is judged as it comes:
/// the document goes to its file as it stands, its stringtable and copies of files go beside it, the settings go into
/// the program folder, and nothing else is written.
class DisturbedSession : public Session {
public:
    DisturbedSession();

    /// Comes before each operation on the disk, and lets it fail when it gives false.
    std::function<bool(const std::string& path)> disturb = [](const std::string&) { return true; };

    std::map<std::string, std::set<std::string>> written; ///< All that each file was given.

    /// The document has CR LF line ends, and characters of the code page only.
    void expectSoundDocument();

    /// The author can go on, and bring the document to the disk.
    void expectSaving();

private:
    void judge(const std::string& path, std::string_view bytes);
};

/// The step "when" of a story, behind which it is disturbed.
inline Steps::const_iterator findWhen(const Steps& steps)
{
    return std::find_if(steps.begin(), steps.end(), [](const Step& step) { return step.cells[0] == "when"; });
}

} // namespace kitwright::testing
