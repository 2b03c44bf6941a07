// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/check_command.h"

#include "support/memory_file_system.h"
#include "text/windows_1250.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kitwright {

namespace {

struct Printed {
    int code = 0;
    std::string out;
};

Printed run(const FileSystem& files, const std::vector<std::string>& arguments)
{
    std::ostringstream out;
    std::ostringstream errors;
    const int code =
        runCheck(checkOrder(arguments).value_or(CheckOrder()), files, windows1250(), {}, {}, out, errors);
    return {code, out.str()};
}

TEST(CheckCommand, PrintsPlacesInCharactersWhateverTheFileIsWrittenIn)
{
    testing::MemoryFileSystem files;
    files.files["/a/one/config.cpp"] = "class \xC8 { x = \"\xE8\"; y = 1 };\r\n";
    files.files["/a/two/config.cpp"] = "\xEF\xBB\xBFx = \"č\" \r y = 1;;";
    files.files["/a/three/config.cpp"] = "#include \"Defs.hpp\"\nONE(č)\nx = \"$STRM_A\"; y = \"$STRM_B\";";
    files.files["/a/three/defs.hpp"] = "#define ONE(x) a = x;";
    files.files["/a/three/StringTable.CSV"] = "LANGUAGE,English\r\n$STRM_A,\xE8\r\n";

    EXPECT_EQ(run(files, {"--check", "/a/one/config.cpp"}).out,
              "/a/one/config.cpp:1:7: warning: The name Č has a letter that is not one of a to z [foreign-letter]\n"
              "/a/one/config.cpp:1:24: error: A semicolon is missing here [missing-semicolon]\n");
    const Printed two = run(files, {"--check", "--format", "json", "/a/two/config.cpp"});
    EXPECT_EQ(two.code, 1);
    EXPECT_NE(two.out.find("\"line\": 1, \"column\": 7, \"endLine\": 1, \"endColumn\": 8, \"severity\": \"error\", "
                           "\"id\": \"missing-semicolon\""),
              std::string::npos)
        << two.out;
    EXPECT_NE(two.out.find("\"line\": 2, \"column\": 8,"), std::string::npos) << two.out;
    const Printed three = run(files, {"--check", "/a/three/config.cpp", "/a/none.cpp"});
    EXPECT_EQ(three.code, 2);
    EXPECT_EQ(three.out, "/a/three/config.cpp:1:11: hint: The file is spelled defs.hpp [include-case]\n"
                         "/a/three/config.cpp:3:21: warning: No string table of the add-on has the key $STRM_B "
                         "[missing-text]\n");
    EXPECT_EQ(run(files, {"--check", "/a/three/config.cpp"}).code, 0);
    EXPECT_EQ(run(files, {"--check"}).code, 2);
    EXPECT_EQ(checkOrder(std::vector<std::string>{"config.cpp"}), std::nullopt);
}

} // namespace

} // namespace kitwright
