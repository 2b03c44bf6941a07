// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/session.h"

#include <QDir>
#include <gtest/gtest.h>

namespace kitwright::testing {

namespace {

/// The sessions of tests/data/sessions, named by their file and their heading.
std::vector<Story> sessions()
{
    std::vector<Story> all;
    for (const QString& file : QDir(QStringLiteral(KITWRIGHT_TOP "/tests/data/sessions")).entryList(QDir::Files)) {
        const std::string stem = fromQt(file.section('.', 0, 0));
        for (Story& story : readStories("sessions/" + fromQt(file)))
            all.push_back({story.name.empty() ? stem : stem + '_' + story.name, std::move(story.steps)});
    }
    return all;
}

struct Sessions : ::testing::TestWithParam<Story> {};

INSTANTIATE_TEST_SUITE_P(Author, Sessions, ::testing::ValuesIn(sessions()),
                         [](const auto& session) { return session.param.name; });

TEST_P(Sessions, GoAsWritten)
{
    Session().play(GetParam().steps);
}

} // namespace

} // namespace kitwright::testing
