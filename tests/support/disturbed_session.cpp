// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/disturbed_session.h"

#include "services/paths.h"
#include "text/letter_case.h"
#include "text/windows_1250.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kitwright::testing {

DisturbedSession::DisturbedSession()
{
    app.files.before = [this](const std::string& path, const std::string_view* bytes) {
        if (bytes) {
            judge(path, *bytes);
            written[path].emplace(*bytes);
        }
        return disturb(path);
    };
}

void DisturbedSession::judge(const std::string& path, std::string_view bytes)
{
    SCOPED_TRACE("writing " + path);
    const std::string& document = app.state().CurrentFile;
    const auto isThat = [&](const auto& file) {
        return FileNameOf(file.first) == FileNameOf(path) && file.second == bytes;
    };
    if (path == "/program/Kitwright.cfg")
        return;
    if (path == *app.files.realPath(document)) {
        EXPECT_EQ(bytes, windows1250().encode(app.box().text()));
        return;
    }
    EXPECT_EQ(FolderOf(path), *app.files.realFolder(document) + '/');
    EXPECT_FALSE(equalIgnoringCase(FileNameOf(path), "config.cpp"));
    const bool isTable = equalIgnoringCase(FileNameOf(path), "Stringtable.csv");
    EXPECT_TRUE(isTable || std::any_of(app.files.files.begin(), app.files.files.end(), isThat))
        << "no copy of a file";
}

void DisturbedSession::expectSoundDocument()
{
    EXPECT_TRUE(hasOnlyCrLf(app.box().text()));
    EXPECT_TRUE(windows1250().holds(app.box().text()));
}

void DisturbedSession::expectSaving()
{
    expectSoundDocument();
    app.dialogs.answers["save"] = {"/after/config.cpp"};
    app.use("cmdsaveas");
    app.use("cmdsave");
    EXPECT_EQ(app.file("/after/config.cpp"), windows1250().encode(app.box().text()));
}

} // namespace kitwright::testing
