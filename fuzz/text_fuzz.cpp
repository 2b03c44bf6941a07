// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/paths.h"
#include "support/input.h"
#include "support/target.h"
#include "text/letter_case.h"
#include "text/text_files.h"

namespace kitwright::fuzzing {

namespace {

void checkCodePage(std::string_view bytes, const std::string& text)
{
    require(codePage().holds(text), "what was decoded is held");
    require(codePage().encode(text) == bytes, "a file is given back byte for byte");
    // The bytes taken for UTF-8: what someone pastes.
    const std::string kept = codePage().keepable(bytes);
    require(codePage().holds(kept), "what is kept is held");
    require(!codePage().holds(bytes) || kept == bytes, "what is held is kept as it stands");
}

void checkLetterCase(const std::string& text)
{
    const std::string capitals = upperCased(text);
    require(capitals.size() == text.size() && upperCased(capitals) == capitals, "capitals are as long, and stay");
    require(codePage().holds(capitals) || text.find("\u00FF") != text.npos, "a letter's capital is held, too");
}

void checkLines(const std::string& text)
{
    const std::string ended = withCrLf(text);
    require(hasOnlyCrLf(ended) && withCrLf(ended) == ended, "line ends become CR LF, once");
    std::string lines;
    for (const std::string_view line : dataLines(ended)) {
        require(line.find_first_of("\r\n") == line.npos, "a line has no line end in it");
        lines.append(line).append("\r\n");
    }
    require(lines == ended || lines == ended + "\r\n", "no line is lost");
}

void checkPath(const std::string& path)
{
    const std::string name = FileNameOf(path);
    require(FolderOf(path) + name == path, "folder and file name are the path");
    require(!isPlainFileName(path) || name.empty(), "a plain file name has no folder");
}

} // namespace

/// The input is a file, a text, or a path.
void tryInput(std::string_view bytes)
{
    const std::string text = decoded(bytes);
    checkCodePage(bytes, text);
    checkLetterCase(text);
    checkLines(text);
    checkPath(text);
}

} // namespace kitwright::fuzzing
