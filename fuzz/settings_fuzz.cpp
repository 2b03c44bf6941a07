// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/settings.h"

#include "support/input.h"
#include "support/target.h"

namespace kitwright::fuzzing {

namespace {

EditorSettings settingsFrom(std::string_view bytes)
{
    EditorSettings settings;
    settings.PboFolder = settings.LanguageFile = "former";
    decodeSettings(bytes, codePage(), settings);
    return settings;
}

} // namespace

/// The input is a settings file.
void tryInput(std::string_view bytes)
{
    const EditorSettings settings = settingsFrom(bytes);
    const std::string written = encodeSettings(settings, codePage());
    require(settingsFrom(written) == settings, "settings that were written read as they were");
    require(settingsFrom(written + "x") == settings, "what stands behind the record is not looked at");
    require(encodeSettings(settingsFrom(written), codePage()) == written, "a record is written in one way only");

    // Paths of the system may hold anything.
    EditorSettings odd = settings;
    odd.PboFolder = bytes;
    const EditorSettings again = settingsFrom(encodeSettings(odd, codePage()));
    require(again.PboFolder == codePage().keepable(bytes), "a path keeps what the code page holds");
    require(again.LanguageFile == settings.LanguageFile, "an odd path leaves the field behind it alone");
}

} // namespace kitwright::fuzzing
