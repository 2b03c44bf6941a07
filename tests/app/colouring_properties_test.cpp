// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/colouring.h"
#include "app/live_colouring.h"
#include "app/live_step.h"
#include "platform/qt_text.h"
#include "services/letter_case.h"
#include "support/any_text_box.h"
#include "support/scenario.h"
#include "support/style_marks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <vector>

namespace kitwright {

namespace {

using testing::markedText;

const KeywordList keywords = testing::sampleKeywords();
const EditorSettings settings = testing::distinctStyles();

/// Random pieces of documents, the same ones in every run.
class Pieces {
public:
    explicit Pieces(unsigned seed) : m_random(seed) {}

    std::size_t below(std::size_t end) { return m_random() % end; }

    std::string text()
    {
        static const testing::Cells pieces = testing::scenarioLines("tables/pieces.txt").front();
        std::string result;
        for (std::size_t count = below(30); count > 0; --count)
            result += pieces[below(pieces.size())];
        return result;
    }

    /// A text as the keys that type it.
    std::vector<std::string> keys()
    {
        std::vector<std::string> result;
        for (const QChar& key : toQt(text())) {
            if (key != u'\r')
                result.push_back(key == u'\n' ? "\r\n" : fromQt(key));
        }
        return result;
    }

private:
    std::mt19937 m_random;
};

/// The styles that a full pass gives, found character by character: 0 plain, 1 to 3 keywords, 4 comments.
std::string ruledEntries(const std::string& text)
{
    std::string entries(text.size(), StyleMap::keep);
    std::string word;
    bool comment = false;
    for (Position i = 0; i < text.size(); ++i) {
        if (text.compare(i, 2, "//") == 0) {
            comment = true;
            word.clear();
        }
        if (comment) {
            entries[i] = 4;
        } else if (std::string_view(" \r\n").find(text[i]) == std::string_view::npos) {
            word += text[i];
        } else {
            const int found = FindExact(0, keywords.count() - 1, word, keywords);
            const char entry = found < 0 ? '\0' : static_cast<char>(keywords.classAt(found));
            entries.replace(i - word.size(), word.size(), word.size(), entry);
            entries[i] = 0;
            word.clear();
        }
        if (text[i] == '\n')
            comment = false;
    }
    return entries;
}

} // namespace

TEST(FullPassProperties, ColoursByTheRulesChangesOnlyTheCaseOfKeywordsAndNothingTwice)
{
    Pieces pieces(1);
    for (int round = 0; round < 1000; ++round) {
        const std::string text = pieces.text();
        // Neighbours that would show if they were read.
        const std::string embedded = "//" + text + "/ CLASS ";
        const StyleMap styles =
            colourText(std::string_view(embedded).substr(2, text.size()), keywords, settings).styles;
        ASSERT_EQ(styles.entries, ruledEntries(text)) << text;

        fuzzing::StringTextBox box(text);
        colourBox(box, keywords, settings);
        ASSERT_EQ(upperCased(box.text()), upperCased(text));
        for (Position i = 0; i < text.size(); ++i)
            ASSERT_TRUE(box.at(i) == text[i] || (styles.entries[i] > 0 && styles.entries[i] < 4))
                << text << " at " << i;
        const std::string coloured = markedText(box);
        const int steps = box.undoSteps();
        ASSERT_EQ(steps, box.text() == text ? 0 : 1);
        colourBox(box, keywords, settings);
        ASSERT_EQ(markedText(box), coloured);
        ASSERT_EQ(box.undoSteps(), steps);
    }
}

TEST(LiveStepProperties, StaysInTheTextAndInOneWord)
{
    Pieces pieces(3);
    for (int round = 0; round < 400; ++round) {
        const fuzzing::StringTextBox box(pieces.text());
        for (Position caret = 0; caret <= box.length(); ++caret) {
            for (const bool inComment : {false, true}) {
                const LiveStep step = liveStep(TextView(box), caret, inComment);
                ASSERT_LE(step.start + step.length, box.length());
                const std::string_view part = box.range(step.start, step.length);
                ASSERT_TRUE(step.kind != LiveStep::Kind::Word || part.find_first_of(" \r\n") == part.npos);
            }
        }
    }
}

namespace {

struct LiveProperties : ::testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Boxes, LiveProperties, ::testing::ValuesIn(testing::AnyTextBox::kinds),
                         [](const auto& box) { return std::string(box.param); });

} // namespace

TEST_P(LiveProperties, TypingAndPastingComeToTheSameColours)
{
    Pieces pieces(4);
    testing::AnyTextBox typed(GetParam(), {});
    testing::AnyTextBox pasted(GetParam(), {});
    LiveColouring live(*typed, keywords, settings);
    for (int round = 0; round < 150; ++round) {
        const std::string text = pieces.text();
        typed->loadText({});
        live.ColouringEnabled = true;
        typed.type(text);
        live.ColouringEnabled = false;
        pasted->loadText(text);
        ASSERT_EQ(upperCased(typed->text()), upperCased(text));
        colourBox(*typed, keywords, settings);
        colourBox(*pasted, keywords, settings);
        const StyleMap styles = colourText(text, keywords, settings).styles;
        for (Position i = 0; i < text.size(); ++i) {
            const bool kept = styles.entries[i] == StyleMap::keep;
            ASSERT_TRUE(kept || typed->styleAt(i) == pasted->styleAt(i)) << text << " at " << i;
        }
    }
}

TEST_P(LiveProperties, KeysChangeOnlyLetterCaseElsewhereAndUndoShowsOnlyTextsThatTheyMade)
{
    Pieces pieces(5);
    testing::AnyTextBox box(GetParam(), {});
    LiveColouring live(*box, keywords, settings);
    live.ColouringEnabled = true;
    for (int round = 0; round < 100; ++round) {
        box->loadText(pieces.text());
        std::set<std::string> seen{std::string(box->text())};
        for (const std::string& key : pieces.keys()) {
            std::string expected(box->text());
            const Position start = pieces.below(expected.size() + 1);
            const Position end = std::min(start + pieces.below(4), expected.size());
            const auto whole = [&](Position at) { return windows1250().holds(expected.substr(0, at)); };
            if (pieces.below(5) == 0 && whole(start) && whole(end))
                box->select(start, end - start);
            const Selection selected = box->selection();
            expected.replace(selected.start, selected.length, key);
            box.type(key);
            ASSERT_EQ(upperCased(box->text()), upperCased(expected));
            ASSERT_EQ(box->selection(), (Selection{selected.start + key.size(), 0}));
            seen.insert(std::string(box->text()));
        }
        for (std::string before; before != box->text();) {
            before = box->text();
            box.undo();
            ASSERT_TRUE(seen.contains(std::string(box->text()))) << box->text();
        }
    }
}

} // namespace kitwright
