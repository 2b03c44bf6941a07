// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packer/run_command.h"

#include "platform/qt_file_streams.h"
#include "platform/qt_file_system.h"
#include "platform/qt_sha1.h"
#include "platform/qt_text.h"
#include "text/windows_1250.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace kitwright {
namespace {

TEST(RunCommand, DoesWhatItsWordsSay)
{
    QTemporaryDir dir;
    const std::string top = fromQt(dir.path()) + '/';
    std::filesystem::create_directory(top + "a");
    std::ofstream(top + "a/config.cpp") << "class A {};\n";
    std::ofstream(top + "a/m.psd") << "x";
    std::filesystem::last_write_time(top + "a/config.cpp", {});
    QtFileSystem files;
    QtFileStreams streams;
    QtSha1 sha1;
    const PackTools tools{files, streams, windows1250(), sha1};

    struct Case {
        std::string words; ///< "@" stands for the folder.
        int status;
        std::string said;
    };
    const std::vector<Case> cases = {
        {"", 2, "no command"},
        {"eat", 2, "eat: no such command"},
        {"list", 2, "list: takes 1 names, not 0"},
        {"pack a b c", 2, "pack: takes 2 names, not 3"},
        {"list a --hash", 2, "--hash: no such option of list"},
        {"pack a b --exclude", 2, "--exclude: needs a value"},
        {"--help", 0, "Usage: kitwright-pack pack FOLDER ARCHIVE"},
        {"list --version", 0, "kitwright-pack 0."},
        {"list @a.pbo", 1, "@a.pbo: not a file"},
        {"pack @none @a.pbo", 1, "@none: not a folder that can be read"},
        {"pack @a @none/a.pbo", 1, "@none/a.pbo: No such file or directory"},
        {"pack --hash --prefix=p @a --exclude *.psd -- @a.pbo", 0,
         "left out: m.psd (matches a pattern)\n@a.pbo: 1 files, 116 bytes\n"},
        {"list @a.pbo", 0, "config.cpp\n"},
        {"list --long @a.pbo", 0, "property prefix=p\nSHA-1 at the end\n        12         12  "},
        {"verify @a.pbo", 0, "@a.pbo: 1 files, 116 bytes\n"},
        {"verify @a/config.cpp", 1, "@a/config.cpp: the list of files is cut"},
        {"unpack @a.pbo @a", 1, "@a: the folder is not empty"},
        {"unpack @a.pbo @b", 0, "@a.pbo: 1 files, 116 bytes\n"},
    };
    for (const Case& asked : cases) {
        const QString words = toQt(asked.words).replace(QLatin1Char('@'), toQt(top));
        std::vector<std::string> list;
        for (const QString& word : words.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            list.push_back(fromQt(word));
        std::ostringstream out;
        std::ostringstream error;
        EXPECT_EQ(runCommand(list, tools, out, error, {}), asked.status) << asked.words;
        const QString said =
            toQt(asked.status == 0 ? out.str() : error.str()).replace(toQt(top), QStringLiteral("@"));
        EXPECT_TRUE(said.contains(toQt(asked.said))) << asked.words << ": " << fromQt(said);
        EXPECT_EQ((asked.status == 0 ? error : out).str(), "") << asked.words;
    }
}

} // namespace
} // namespace kitwright
