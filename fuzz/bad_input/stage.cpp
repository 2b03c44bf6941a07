// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stage.h"

#include "services/settings.h"
#include "text/windows_1250.h"

#include <fstream>
#include <functional>

namespace kitwright::badinput {

namespace fs = std::filesystem;

const char* const ordinaryDocument = "class CfgPatches\r\n"
                                     "{\r\n"
                                     "  class KW_Ordinary\r\n"
                                     "  {\r\n"
                                     "     units[]={};\r\n"
                                     "     weapons[]={};\r\n"
                                     "   };\r\n"
                                     "};\r\n"
                                     "// Pu\x9Aka \xE8. 1\r\n";

void expect(bool holds, const std::string& what)
{
    if (!holds)
        throw Fault(what);
}

Stage::Stage(fs::path folder) : m_folder(std::move(folder))
{
    fs::create_directories(m_folder / "addon");
    fs::create_directories(m_folder / "elsewhere");
    fs::create_directories(m_folder / "program");
    fs::copy(fs::path(KITWRIGHT_TOP) / "data/Bfdata", m_folder / "program/Bfdata",
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    EditorSettings settings;
    settings.PboFolder = path("elsewhere");
    settings.LanguageFile = path("program/Bfdata/languages/kitwright/english.lng");
    write("program/Kitwright.cfg", encodeSettings(settings, windows1250()));
    write("addon/config.cpp", ordinaryDocument);
}

std::string Stage::read(const std::string& place) const
{
    std::ifstream file(m_folder / place, std::ios::binary);
    expect(file.is_open(), "no file " + place);
    std::string bytes(fs::file_size(m_folder / place), '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    expect(file.good() || bytes.empty(), "cannot read " + place);
    return bytes;
}

void Stage::write(const std::string& place, const std::string& bytes) const
{
    std::ofstream file(m_folder / place, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    expect(file.good(), "cannot write " + place);
}

void Stage::remember()
{
    m_before = listing();
}

Stage::Listing Stage::listing() const
{
    Listing files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(m_folder)) {
        const std::string place = fs::relative(entry.path(), m_folder).string();
        files[place] = entry.is_directory() ? 0 : std::hash<std::string>()(read(place));
    }
    return files;
}

void Stage::expectOnlyChanged(const std::set<std::string>& places) const
{
    const Listing after = listing();
    for (const auto& [place, content] : after) {
        const auto before = m_before.find(place);
        expect(places.contains(place) || before != m_before.end(), place + " was made");
        expect(places.contains(place) || before->second == content, place + " was changed");
    }
    for (const auto& [place, content] : m_before)
        expect(after.contains(place), place + " was removed");
}

} // namespace kitwright::badinput
