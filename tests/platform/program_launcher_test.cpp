// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/qt_program_launcher.h"
#include "platform/qt_text.h"
#include "support/scenario.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace kitwright {

TEST(ProgramLauncher, PassesOneArgumentAsItStands)
{
    // The stand-in writes how many arguments it got, then each on a line; the file appears when it is whole.
    const QTemporaryDir dir;
    const std::string program = fromQt(dir.filePath("the packer.exe"));
    QFile script(toQt(program));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\nprintf '%s\\n' \"$#\" \"$@\" > \"$0.part\" && mv \"$0.part\" \"$0.seen\"\n");
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    script.close();
    for (const auto& [argument, received] : testing::scenarioTable<2>("tables/arguments.txt")) {
        EXPECT_EQ(QtProgramLauncher().start(program, argument), Failure());
        QFile seen(toQt(program + ".seen"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return seen.exists(); }, 10'000)) << argument;
        ASSERT_TRUE(seen.open(QIODevice::ReadOnly));
        EXPECT_EQ(seen.readAll().toStdString(), "1\n" + received + "\n");
        seen.remove();
    }
    EXPECT_TRUE(QtProgramLauncher().start(program + ".missing", "x"));
}

} // namespace kitwright
