// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/paths.h"

#include <gtest/gtest.h>

namespace kitwright {

TEST(Paths, SplitAtTheLastSeparatorAndKnowWhatNamesAFile)
{
    const std::string cases[][3] = {
        {"C:\\a\\b.cpp", "C:\\a\\", "b.cpp"},
#ifndef _WIN32
        {"/home\\a/b.cpp", "/home\\a/", "b.cpp"},
#endif
        {"/home/a\\b.cpp", "/home/a\\", "b.cpp"}, {"b.cpp", "b.cpp", ""}, {"C:\\a\\", "C:\\a\\", ""}, {"", "", ""}};
    for (const auto& [path, folder, file] : cases) {
        EXPECT_EQ(FolderOf(path), folder) << path;
        EXPECT_EQ(FileNameOf(path), file) << path;
    }
    for (const std::string name : {"žluť.jpg", ".hidden", "a b", "..."})
        EXPECT_TRUE(isPlainFileName(name)) << name;
    for (const std::string name : {"", ".", "..", "a/b", "..\\a", "a\n", "a\x7F"})
        EXPECT_FALSE(isPlainFileName(name)) << name;
}

} // namespace kitwright
