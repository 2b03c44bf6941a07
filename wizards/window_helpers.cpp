// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/window_helpers.h"

#include "wizards/catalogue.h"

#include <QLabel>

namespace kitwright {

Q_LOGGING_CATEGORY(lcWizards, "kitwright.wizards")

void report(const char* step, const Failures& failures)
{
    for (const std::string& failure : failures)
        report(lcWizards(), step, failure);
}

std::vector<ListEntry> loadIfThere(const Context& context, const char* file)
{
    std::vector<ListEntry> entries;
    const std::string path = context.inProgramFolder(file);
    if (context.files.fileExists(path))
        report(lcWizards(), "loading a list", LoadListFile(context.texts, path, entries));
    return entries;
}

void keepRoomForHelp(QLabel& label)
{
    label.setMinimumHeight(2 * label.fontMetrics().lineSpacing());
}

} // namespace kitwright
