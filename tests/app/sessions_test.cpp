// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/disturbed_session.h"
#include "support/haste.h"

#include <QDir>
#include <gtest/gtest.h>

namespace kitwright::testing {

namespace {

/// The sessions of tests/data/sessions, named by their file and their heading.
Stories sessions()
{
    Stories all;
    for (const QString& file : QDir(QStringLiteral(KITWRIGHT_TOP "/tests/data/sessions")).entryList(QDir::Files)) {
        const std::string stem = fromQt(file.section('.', 0, 0));
        for (const auto& [name, steps] : readStories("sessions/" + fromQt(file)))
            all[name.empty() ? stem : stem + '_' + name] = steps;
    }
    return all;
}

struct Sessions : ::testing::TestWithParam<Stories::value_type> {};

INSTANTIATE_TEST_SUITE_P(Author, Sessions, ::testing::ValuesIn(sessions()),
                         [](const auto& session) { return session.param.first; });

TEST_P(Sessions, GoAsWritten)
{
    Session().play(GetParam().second);
}

/// KITWRIGHT_SEED=N plays other events, or those that a failure named once more.
TEST_P(Sessions, BearHaste)
{
    bool isSet = false;
    const int given = qEnvironmentVariableIntValue("KITWRIGHT_SEED", &isSet);
    const unsigned seed = isSet ? static_cast<unsigned>(given) : 1;
    SCOPED_TRACE("KITWRIGHT_SEED=" + std::to_string(seed));
    constexpr int eventsBetweenSteps = 4;
    DisturbedSession session;
    Haste haste(session.app, seed);
    session.between = [&] {
        haste.run(eventsBetweenSteps);
        if (session.app.isRunning())
            session.expectSoundDocument();
    };
    session.act(GetParam().second);
    session.expectSaving();
}

} // namespace

} // namespace kitwright::testing
