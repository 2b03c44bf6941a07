// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_system.h"
#include "text/code_page.h"

#include <QString>

class QCoreApplication;

namespace kitwright {

/// The language that the editor was set to, as in "cs": that of the language file that the settings in the program
/// folder name. Empty for a language of the author's own, and when none was chosen.
QString chosenLanguage(const FileSystem& files, const CodePage& codePage, const std::string& programFolder);

/// Has the program speak that language from now on, as far as there are translations in the program folder; English
/// where there are none.
void speak(const QString& language, QCoreApplication& program, const std::string& programFolder);

} // namespace kitwright
