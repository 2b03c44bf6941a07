// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/scintilla_control.h"
#include "editor/scintilla_text_box.h"
#include "fuzz/support/string_text_box.h"
#include "support/scenario.h"
#include "support/typing.h"
#include "text/windows_1250.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

namespace kitwright::testing {
namespace {

/// The letters that styles are written with, and "-" for a style that is kept.
const std::map<char, TextStyle> letters{{'.', {}}, {'r', {0x0000FF, true, false}}, {'b', {0xFF0000, false, true}}};

/// Works on a box step by step, and looks at what becomes of it.
class Work final : TextObserver {
public:
    Work(RichTextBox& box, std::function<void()> undo) : m_box(box), m_undo(std::move(undo))
    {
        m_box.setObserver(this);
    }
    ~Work() override { m_box.setObserver(nullptr); }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

    void play(const std::string& file)
    {
        for (Cells step : scenarioLines(file)) {
            SCOPED_TRACE(::testing::PrintToString(step));
            step.resize(4);
            m_verbs.at(step[0])(step[1], step[2], step[3]);
        }
    }

private:
    using Text = const std::string&;

    bool willEditAfter(const PendingEdit& /*edit*/) override { return m_joins; }

    /// While an answer is set, it takes the place of the first character.
    void textChanged(ChangeOrigin origin) override
    {
        m_heard += origin == ChangeOrigin::Edit ? 'e' : 'u';
        if (origin == ChangeOrigin::Edit && !m_answer.empty())
            m_box.replaceRange(0, 1, m_answer);
    }

    std::string textWithSelection() const
    {
        std::string text(m_box.text());
        text.insert(m_box.caret(), "|");
        return m_box.selection().length == 0 ? text : text.insert(m_box.selection().start, "[");
    }

    std::string styles() const
    {
        std::string marks(m_box.length(), '?');
        for (Position i = 0; i < m_box.length(); ++i) {
            for (const auto& [letter, style] : letters)
                marks[i] = m_box.styleAt(i) == style ? letter : marks[i];
        }
        return marks;
    }

    void styleAll(Text marks)
    {
        StyleMap map;
        for (const char mark : marks) {
            map.entries += mark == '-' ? StyleMap::keep : static_cast<char>(map.palette.size());
            map.palette.push_back(mark == '-' ? TextStyle{} : letters.at(mark));
        }
        m_box.styleAll(map);
    }

    static Position number(Text text) { return std::stoul(text); }

    const std::map<std::string, std::function<void(Text, Text, Text)>> m_verbs{
        {"load", [this](Text text, Text, Text) { loadMarked(m_box, text); }},
        {"set", [this](Text text, Text, Text) { m_box.setText(text); }},
        {"select", [this](Text start, Text length, Text) { m_box.select(number(start), number(length)); }},
        {"put", [this](Text text, Text, Text) { m_box.replaceSelection(text); }},
        {"replace", [this](Text at, Text size, Text by) { m_box.replaceRange(number(at), number(size), by); }},
        {"undo", [this](Text, Text, Text) { m_undo(); }},
        {"begin", [this](Text, Text, Text) { m_box.beginUndoStep(); }},
        {"end", [this](Text, Text, Text) { m_box.endUndoStep(); }},
        {"answer", [this](Text text, Text joined, Text) { m_answer = text, m_joins = joined == "joined"; }},
        {"style", [this](Text at, Text size,
                         Text mark) { m_box.styleRange(number(at), number(size), letters.at(mark.at(0))); }},
        {"paint", [this](Text marks, Text, Text) { styleAll(marks); }},
        {"see", [this](Text text, Text, Text) { EXPECT_EQ(textWithSelection(), text); }},
        {"read", [this](Text at, Text size, Text text) { EXPECT_EQ(m_box.range(number(at), number(size)), text); }},
        {"byte", [this](Text at, Text byte, Text) { EXPECT_EQ(m_box.at(number(at)), byte.at(0)); }},
        {"styled", [this](Text marks, Text, Text) { EXPECT_EQ(styles(), marks); }},
        {"heard", [this](Text changes, Text, Text) { EXPECT_EQ(std::exchange(m_heard, {}), changes); }},
    };

    RichTextBox& m_box;
    std::function<void()> m_undo;
    bool m_joins = false;
    std::string m_answer;
    std::string m_heard; ///< "e" for each edit, "u" for undo.
};

TEST(TextBox, KeepsItsContractInTheControl)
{
    ScintillaControl control;
    ScintillaTextBox box(control, windows1250());
    Work(box, [&] { box.undo(); }).play("tables/text_box.txt");
}

TEST(TextBox, KeepsItsContractInTheBoxOfTheFuzzers)
{
    fuzzing::StringTextBox box;
    Work(box, [&] { box.undo(); }).play("tables/text_box.txt");
}

} // namespace
} // namespace kitwright::testing
