// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/disturbed_session.h"
#include "text/text_files.h"

#include <gtest/gtest.h>

namespace kitwright::testing {

namespace {

const Stories& stories()
{
    static const Stories all = readStories("faults.txt");
    return all;
}

/// A story of tests/data/faults.txt, played up to "when" and then with a fault.
class FaultySession : public DisturbedSession {
public:
    /// `fault` is the operation behind "when", counted from 1, that fails; 0: none.
    FaultySession(const Steps& steps, int fault)
    {
        const auto when = findWhen(steps);
        play({steps.begin(), when});
        for (const auto& [path, bytes] : app.files.files)
            written[path].insert(bytes);
        documents = {seen("document")};
        disturb = [this, fault](const std::string& path) {
            if (++operations == fault)
                failed = path;
            return operations != fault;
        };
        reports.clear();
        act({when + 1, steps.end()});
        documents.insert(seen("document"));
    }

    /// The old and the new state of everything, as far as it differs from what another session had.
    void expectAsIn(const FaultySession& sound)
    {
        EXPECT_EQ(reports.size(), 1U);
        for (const auto& [path, bytes] : app.files.files) {
            const auto known = sound.written.find(path);
            EXPECT_TRUE(known != sound.written.end() && known->second.contains(bytes))
                << path << ": " << ::testing::PrintToString(bytes);
        }
        EXPECT_TRUE(sound.documents.contains(seen("document"))) << seen("document");
    }

    int operations = 0; ///< Since "when".
    std::string failed; ///< The path of the one that failed.
    std::set<std::string> documents;
};

struct Faults : ::testing::TestWithParam<Stories::value_type> {};

INSTANTIATE_TEST_SUITE_P(Of, Faults, ::testing::ValuesIn(stories()),
                         [](const auto& story) { return story.param.first; });

TEST_P(Faults, LeaveTheOldOrTheNewAndALineOnStandardError)
{
    const Steps& steps = GetParam().second;
    FaultySession sound(steps, 0);
    EXPECT_TRUE(reports.empty());
    EXPECT_GT(sound.operations, 0);
    for (int fault = 1; fault <= sound.operations; ++fault) {
        FaultySession faulty(steps, fault);
        SCOPED_TRACE("operation " + std::to_string(fault) + ": " + faulty.failed);
        faulty.expectAsIn(sound);
        faulty.expectSaving();
    }
}

} // namespace

} // namespace kitwright::testing
