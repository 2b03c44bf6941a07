// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/report.h"
#include "wizards/wizard_commands.h"

#include <memory>
#include <vector>

class QLabel;

namespace kitwright {

Q_DECLARE_LOGGING_CATEGORY(lcWizards)

/// Leaves one line on standard error for each step that failed.
void report(const char* step, const Failures& failures);

/// The entries of a flat list file below the program folder. A file that is not there gives none and is not
/// reported; one that cannot be read is.
std::vector<ListEntry> loadIfThere(const Context& context, const char* file);

/// The element that stands for a row of a list, or nullptr when no such row is highlighted.
template <class Record>
Record* recordAt(std::vector<Record>& records, int row)
{
    return row >= 0 && row < static_cast<int>(records.size()) ? &records[static_cast<std::size_t>(row)] : nullptr;
}

/// Makes the controls of a window's design in the window.
template <class Design, class Window>
std::unique_ptr<Design> designed(Window& window)
{
    auto design = std::make_unique<Design>();
    design->setupUi(&window);
    return design;
}

/// Gives a label the room of two lines, so that the help it shows does not move the controls around it.
void keepRoomForHelp(QLabel& label);

} // namespace kitwright
