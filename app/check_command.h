// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/finding_output.h"
#include "config/surroundings.h"
#include "text/text_files.h"

#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// What `kitwright --check` is asked for.
struct CheckOrder {
    enum class Format { Lines, Json };

    std::vector<std::string> files;
    Format format = Format::Lines;
    std::string language; ///< Empty: English.
    std::string fault;    ///< Why the order cannot be done, in one line; empty: it can.
};

/// The order in the arguments behind the program's name; nothing when "--check" is not among them.
std::optional<CheckOrder> checkOrder(std::span<const std::string> arguments);

/// What the check knows of the game.
struct GameKnowledge {
    GameClasses classes;
    PropertyKinds properties;
};

/// Reads it from the data files below the program folder; what cannot be read is not known.
GameKnowledge readGameKnowledge(const TextFiles& texts, const std::string& programFolder);

/// Checks the files of an order, each with what lies in its folder, and prints what is found. Gives the program's exit
/// code: 0 when no file has an error, 1 when one has, 2 when one cannot be read or the order cannot be done.
int runCheck(const CheckOrder& order, const FileSystem& files, const CodePage& codePage, const GameKnowledge& game,
             const MessageTexts& texts, std::ostream& out, std::ostream& errors);

} // namespace kitwright
