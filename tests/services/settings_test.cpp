// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/settings.h"

#include "support/memory_file_system.h"
#include "text/windows_1250.h"

#include <gtest/gtest.h>

namespace kitwright {
namespace {

using namespace std::string_literals;

const std::string path = "/program/Kitwright.cfg";

/// Every field differs from its default.
const EditorSettings full{0x112233, true, true, 0x445566, false, true,     0x778899, false,         true,
                          false,    true, true, true,     true,  0xAABBCC, "/žofie", "/čeština.lng"};

/// The defaults' record, spelled out.
const std::string defaults =
    "\x80\x80\xFF\0\0\0\0\0\0\0\xC0\0\xFF\xFF\0\0\xC0\x40\0\0\xFF\xFF\0\0\xFF\xFF"s + std::string(16, '\0');

struct SettingsFile : ::testing::Test {
    EditorSettings load(const std::string& bytes)
    {
        disk.files[path] = bytes;
        EditorSettings settings;
        settings.PboFolder = settings.LanguageFile = "before";
        EXPECT_FALSE(LoadSettings(disk, page, path, settings));
        return settings;
    }

    testing::MemoryFileSystem disk;
    const CodePage& page = windows1250();
};

TEST_F(SettingsFile, HoldsEveryField)
{
    EXPECT_EQ(encodeSettings({}, page).size(), 42U);
    EXPECT_EQ(encodeSettings({}, page), defaults);
    const std::string bytes = encodeSettings(full, page);
    EXPECT_EQ(bytes.substr(34), "\xCC\xBB\xAA\0\x06\0/\x9Eofie\x0C\0/\xE8"
                                "e\x9Atina.lng"s);
    EXPECT_EQ(load(bytes + "what a later version wrote"), full);
    EXPECT_EQ(load(std::string(42, '\xFF')).PboFolder, "");
    EXPECT_TRUE(load("\0\0\0\0\1\0"s).ConfigKeywordBold); // Whatever is not 0 is true.
    // Written over a longer file it leaves the rest alone.
    EXPECT_FALSE(SaveSettings(disk, page, path, full));
    EXPECT_FALSE(SaveSettings(disk, page, path, {}));
    EXPECT_EQ(disk.files[path], defaults + bytes.substr(42));
}

TEST_F(SettingsFile, KeepsTheDefaultsOfWhatAShortOneLacks)
{
    // Where each field ends, in the full record and in the defaults'.
    const std::pair<std::size_t, std::size_t> ends[] = {{4, 4},   {6, 6},   {8, 8},   {12, 12}, {14, 14}, {16, 16},
                                                        {20, 20}, {22, 22}, {24, 24}, {26, 26}, {28, 28}, {30, 30},
                                                        {32, 32}, {34, 34}, {38, 38}, {46, 40}, {60, 42}};
    const std::string whole = encodeSettings(full, page);
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        std::pair<std::size_t, std::size_t> held;
        for (const auto& end : ends)
            held = end.first <= length ? end : held;
        const std::string expected = whole.substr(0, held.first) + defaults.substr(held.second);
        EXPECT_EQ(encodeSettings(load(whole.substr(0, length)), page), expected) << length;
    }
}

TEST_F(SettingsFile, CutsAStringThatItsLengthCannotTell)
{
    EditorSettings settings;
    settings.PboFolder = "日" + std::string(70'000, 'x');
    settings.LanguageFile = std::string(65'535, 'y');
    const std::string bytes = encodeSettings(settings, page);
    EXPECT_EQ(load(bytes).PboFolder, std::string(65'535, 'x'));
    EXPECT_EQ(load(bytes).LanguageFile, settings.LanguageFile);
}

} // namespace
} // namespace kitwright
