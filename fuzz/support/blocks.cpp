// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/blocks.h"

#include "services/paths.h"
#include "support/memory_file_system.h"
#include "support/target.h"
#include "text/letter_case.h"
#include "text/text_files.h"

#include <algorithm>

namespace kitwright::fuzzing {

namespace {

/// May a copy into the folder of /addon/config.cpp have written to the path?
bool isCopyInAddon(const std::string& path)
{
    constexpr std::string_view folder = "/addon/";
    if (!path.starts_with(folder))
        return false;
    const std::string_view name = std::string_view(path).substr(folder.size());
    return isPlainFileName(name) && !equalIgnoringCase(name, "config.cpp")
        && !equalIgnoringCase(name, "Stringtable.csv");
}

} // namespace

std::string harmless(std::string_view text)
{
    std::string result(text);
    std::replace_if(
        result.begin(), result.end(), [](char character) { return character != '/' && character != '\\'; }, 'x');
    return result;
}

std::vector<PropertySetting> harmless(std::vector<PropertySetting> settings)
{
    for (PropertySetting& setting : settings)
        setting.Value = harmless(setting.Value);
    return settings;
}

void checkShape(std::string_view block)
{
    require(hasOnlyCrLf(block), "lines end with CR LF");
    constexpr std::string_view lineEnd = "\r\n";
    int depth = 0;
    for (std::size_t start = 0, end = 0; start < block.size(); start = end + lineEnd.size()) {
        end = std::min(block.find(lineEnd, start), block.size());
        const std::string_view words = trimmedSpaces(block.substr(start, end - start));
        require(words != "};" || depth > 0, "no brace closes that was not opened");
        depth += words == "{" ? 1 : words == "};" ? -1 : 0;
        require(words.find_first_of("{}") == words.npos || words == "{" || words == "};" || words.ends_with("{};"),
                "braces stand in lines of their own");
    }
    require(depth == 0, "every brace is closed");
}

void checkTwin(std::string_view block, std::string_view twin)
{
    require(block.size() == twin.size(), "a block is as long as its texts make it");
    for (std::size_t index = 0; index < block.size(); ++index)
        require(block[index] == twin[index] || twin[index] == 'x', "texts change nothing around them");
}

void checkCopies(const std::vector<FileCopy>& copies)
{
    testing::MemoryFileSystem files;
    for (const char* path : {"/addon/config.cpp", "/addon/Stringtable.csv", "/other/config.cpp", "/config.cpp"})
        files.files[path] = "the author's";
    for (const FileCopy& copy : copies)
        files.writeBytes(copy.from, "copied");
    const auto before = files.files;
    copyIntoAddon(files, "/addon/config.cpp", copies);
    for (const auto& [path, bytes] : files.files) {
        const auto former = before.find(path);
        require((former != before.end() && former->second == bytes) || isCopyInAddon(path),
                "nothing is written outside the add-on, or over its own files");
    }
    const auto written = files.files;
    copyIntoAddon(files, "", copies);
    require(files.files == written, "nothing is copied for a document without a path");
}

std::vector<PropertySetting> takeSettings(Pieces& pieces, std::size_t count)
{
    std::vector<PropertySetting> settings(count);
    for (PropertySetting& setting : settings) {
        setting.Value = pieces.text();
        setting.Used = !setting.Value.starts_with('-');
    }
    return settings;
}

} // namespace kitwright::fuzzing
