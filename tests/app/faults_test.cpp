// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/session.h"
#include "text/windows_1250.h"

#include <gtest/gtest.h>

#include <set>

namespace kitwright::testing {

namespace {

int reported = 0;

/// Counts what the program reports of itself.
void countReports(QtMsgType /*type*/, const QMessageLogContext& context, const QString& /*text*/)
{
    if (!QLatin1String(context.category).startsWith(QLatin1String("kitwright.")))
        return;
    ++reported;
}

/// A story of tests/data/faults.txt, played up to "when" and then with a fault.
class FaultySession {
public:
    /// `fault` is the operation behind "when", counted from 1, that fails; 0: none.
    FaultySession(const Steps& steps, int fault)
    {
        const auto when =
            std::find_if(steps.begin(), steps.end(), [](const Step& step) { return step.cells[0] == "when"; });
        session.play({steps.begin(), when});
        for (const auto& [path, bytes] : files.files)
            written[path].insert(bytes);
        files.history = &written;
        documents = {session.seen("document")};
        files.operations = 0;
        files.failing = fault;
        reported = 0;
        session.act({when + 1, steps.end()});
        files.failing = 0;
        documents.insert(session.seen("document"));
    }

    /// The old and the new state of everything, as far as it differs from what another session had.
    void expectAsIn(const FaultySession& sound)
    {
        for (const auto& [path, bytes] : files.files) {
            const auto known = sound.written.find(path);
            EXPECT_TRUE(known != sound.written.end() && known->second.contains(bytes))
                << path << ": " << ::testing::PrintToString(bytes);
        }
        EXPECT_TRUE(sound.documents.contains(session.seen("document"))) << session.seen("document");
        EXPECT_TRUE(hasOnlyCrLf(session.seen("document")));
    }

    /// The author can go on, and bring the document to the disk.
    void expectSaving()
    {
        session.app.dialogs.answers["save"] = {"/after/config.cpp"};
        session.app.use("cmdsave");
        EXPECT_EQ(windows1250().decode(files.files[session.app.state().CurrentFile]), session.seen("document"));
    }

    Session session;
    MemoryFileSystem& files = session.app.files;
    std::map<std::string, std::set<std::string>> written; ///< What each file held at any time.
    std::set<std::string> documents;
};

std::vector<std::string> names()
{
    std::vector<std::string> all;
    for (const auto& [name, steps] : readStories("faults.txt"))
        all.push_back(name);
    return all;
}

struct Faults : ::testing::TestWithParam<std::string> {
    Faults() : m_former(qInstallMessageHandler(countReports)) {}
    ~Faults() override { qInstallMessageHandler(m_former); }

private:
    QtMessageHandler m_former;
};

INSTANTIATE_TEST_SUITE_P(Of, Faults, ::testing::ValuesIn(names()), [](const auto& story) { return story.param; });

TEST_P(Faults, LeaveTheOldOrTheNewAndALineOnStandardError)
{
    const Steps steps = readStories("faults.txt").at(GetParam());
    FaultySession sound(steps, 0);
    EXPECT_EQ(reported, 0);
    EXPECT_GT(sound.files.operations, 0);
    for (int fault = 1; fault <= sound.files.operations; ++fault) {
        FaultySession faulty(steps, fault);
        SCOPED_TRACE("operation " + std::to_string(fault) + ": " + faulty.files.failed);
        EXPECT_EQ(reported, 1);
        faulty.expectAsIn(sound);
        faulty.expectSaving();
    }
    RecordProperty("faults", sound.files.operations);
}

} // namespace

} // namespace kitwright::testing
