// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/live_colouring.h"

#include "app/colouring.h"
#include "support/any_text_box.h"
#include "support/style_marks.h"

#include <QClipboard>
#include <QGuiApplication>
#include <gtest/gtest.h>

#include <fstream>

namespace kitwright {

namespace {

using testing::marked;
using testing::markedText;

/// Typing into a box of either kind, coloured live.
struct Typing : ::testing::TestWithParam<const char*> {
    testing::AnyTextBox box{GetParam(), {}};
    KeywordList keywords = testing::sampleKeywords();
    EditorSettings settings = testing::distinctStyles();
    LiveColouring live{*box, keywords, settings};

    Typing() { live.ColouringEnabled = true; }

    /// A document whose caret stands at the "|", all of it in the old style, so that what a step leaves alone shows.
    void open(const std::string& text)
    {
        const std::size_t caret = text.find('|');
        box->loadText(text.substr(0, caret) + text.substr(caret + 1));
        box->styleRange(0, box->length(), testing::oldStyle);
        box->select(caret, 0);
    }

    void typeAt(Position position, std::string_view keys)
    {
        box->select(position, 0);
        box.type(keys);
    }
};

INSTANTIATE_TEST_SUITE_P(Boxes, Typing, ::testing::ValuesIn(testing::AnyTextBox::kinds),
                         [](const auto& box) { return std::string(box.param); });

/// The control under the fingers of a person, with its own undo history.
struct Keyboard : ::testing::Test {
    ScintillaControl control;
    ScintillaTextBox box{control, windows1250()};
    KeywordList keywords = testing::sampleKeywords();
    EditorSettings settings = testing::distinctStyles();
    LiveColouring live{box, keywords, settings};

    Keyboard() { live.ColouringEnabled = true; }

    void open(std::string_view text)
    {
        box.loadText(text);
        box.select(box.length(), 0);
    }

    void type(const char* keys) { QTest::keyClicks(&control, keys); }
    void key(Qt::Key key) { QTest::keyClick(&control, key); }
    void withControl(Qt::Key key) { QTest::keyClick(&control, key, Qt::ControlModifier); }
};

} // namespace

TEST_P(Typing, StylesTheSampleKeyByKey)
{
    std::ifstream file(KITWRIGHT_TOP "/tests/data/colouring/typing.expected");
    std::string line;
    std::getline(file, line);
    std::string above;
    Position lineStart = 0;
    int keys = 0;
    for (; std::getline(file, line); ++keys) {
        const std::string key = line.substr(0, line.find(' '));
        const std::size_t column = 8 + key.size() - static_cast<std::size_t>(toQt(key).size());
        box.type(key == "Space" ? " " : key == "Enter" ? "\r\n" : key);
        if (key == "Enter") {
            lineStart = box->length();
            above = markedText(*box);
        }
        ASSERT_EQ(marked(*box, lineStart), line.substr(column)) << "after key " << keys << ", " << key;
        ASSERT_TRUE(markedText(*box).starts_with(above)) << "after key " << keys << ", " << key;
    }
    EXPECT_EQ(keys, 59);
}

TEST_P(Typing, RestylesTheWordAroundTheKey)
{
    const struct {
        std::string before;
        std::string keys;
        std::string after;
    } cases[] = {
        // The word that is typed into, wherever in it.
        {"x CLA|S", "S", "<O:x ><L:clas|s>"},
        {"x clas|s", "x", "<O:x >clasx|s"},
        {"x CLAS|S\r\ny", "{", "<O:x >CLAS{|S<O:\r\ny>"},
        {"x OD|", "D", "<O:x odd|>"},
        {"x y\tCLAS|", "S", "<O:x >y\tCLASS|"},
        // A delimiter: the word behind it.
        {"x man|CLASS y", " ", "<O:x man> |<L:class><O: y>"},
        {"x man|CLASS y", "\r\n", "<O:x man>\r\n|<L:class><O: y>"},
        {"man |CLASS", "\r\n", "<O:man >\r\n|<L:class>"},
        // The first character of a word: what stands behind it, unless that is a space.
        {"x |CLASS", "a", "<O:x >a|<L:class>"},
        {"x | CLASS", "a", "<O:x >a|<O: CLASS>"},
        {"x | CLASS", " ", "<O:x > |<O: CLASS>"},
        {"x |", "čl", "<O:x >čl|"},
        // The first word of the text has no delimiter in front.
        {"CLAS|", "S", "<O:CLAS>S|"},
        {"|MAN", "x", "x|<N:Man>"},
        {"|MAN", " ", " |<N:Man>"},
        {"CLASS|MAN", " ", "<O:CLASS> |<N:Man>"},
        // Slashes.
        {"x |", "= a/b", "<O:x >= a/b|"},
        {"x a/|", "/", "<O:x a><K://|>"},
        {"x a|/ y", "/", "<O:x >a/|/<O: y>"},
        {"x |/ y", "/", "<O:x >/|/<O: y>"},
        {"a/|", "/b", "<O:a><K://b|>"},
        {"x //man|", "y", "<O:x ><K://><O:man>y|"},
        {"// a|", "b", "<O:// >ab|"},
    };
    for (const auto& [before, keys, after] : cases) {
        open(before);
        box.type(keys);
        EXPECT_EQ(marked(*box), after) << before << " " << keys;
        typeAt(0, "z"); // Out of any comment.
    }
}

TEST_P(Typing, StaysInACommentUntilALineBreakOrTheStartOfTheText)
{
    open("x |");
    box.type("//a");
    EXPECT_EQ(marked(*box), "<O:x ><K://a|>");
    typeAt(1, "y");
    EXPECT_EQ(marked(*box), "<O:x><K:y|><O: ><K://a>");
    typeAt(1, "č");
    EXPECT_EQ(marked(*box), "<O:x><K:č|y><O: ><K://a>");
    typeAt(0, "w");
    EXPECT_EQ(marked(*box), "w|xčy<O: ><K://a>");
    typeAt(4, "v");
    EXPECT_EQ(marked(*box), "wxčv|y<O: ><K://a>");

    open("x |\r\nman  y");
    box.type("//");
    typeAt(10, "d");
    EXPECT_EQ(marked(*box, 6), "<O:man >d|<O: y>") << "between two spaces";
    typeAt(7, "bc");
    EXPECT_EQ(marked(*box), "<O:x ><K://><O:\r\nm><K:bc|><O:an >d<O: y>") << "the flag is not the line's";
    box.type("\r\n");
    EXPECT_EQ(marked(*box, 6), "<O:m><K:bc>\r\n|an<O: >d<O: y>");

    open("x |\r\nman y");
    box.type("//");
    typeAt(6, "A");
    EXPECT_EQ(marked(*box, 6), "A|man<O: y>") << "behind a line break";
}

TEST_P(Typing, RestsWhileColouringIsOffOrHeld)
{
    const auto typed = [&] {
        open("x MA|");
        box.type("N //b");
        return marked(*box);
    };
    const std::string untouched = "<O:x MA>N //b|";
    settings.KeywordColouringOff = true;
    EXPECT_EQ(typed(), untouched);
    settings.KeywordColouringOff = false;
    live.ColouringEnabled = false;
    EXPECT_EQ(typed(), untouched);
    live.ColouringEnabled = true;
    live.hold();
    EXPECT_EQ(typed(), untouched);
    live.release();
    EXPECT_EQ(typed(), "<O:x ><N:Man> <K://b|>");
}

TEST_P(Typing, ShowsChangedSettingsInTheWordThatIsTypedInto)
{
    open("x class class Man |");
    colourBox(*box, keywords, settings);
    const EditorSettings before = settings;
    settings.CKeywordColor = 0x010101;
    settings.ClassNameBold = false;
    typeAt(2, "y");
    EXPECT_EQ(marked(*box, 0, before), "x y|<?:class> <L:class> <N:Man> ");
    EXPECT_EQ(marked(*box, 0, settings), "x y|<L:class> <?:class> <?:Man> ");
}

TEST_F(Keyboard, UndoesARespellingWithItsKeystroke)
{
    open("x ");
    type("CLAS");
    key(Qt::Key_Left);
    key(Qt::Key_Right);
    type("S");
    EXPECT_EQ(marked(box), "x <L:class|>");
    withControl(Qt::Key_Z);
    EXPECT_EQ(marked(box), "x CLAS|");
    withControl(Qt::Key_Z);
    EXPECT_EQ(marked(box), "x |");
    withControl(Qt::Key_Y);
    withControl(Qt::Key_Y);
    EXPECT_EQ(marked(box), "x <L:class|>");
    type("es Man");
    EXPECT_EQ(marked(box), "x classes <N:Man|>");
    withControl(Qt::Key_Z);
    EXPECT_EQ(marked(box), "x <L:class|>") << "typing without a respelling stays one step";
    withControl(Qt::Key_Z);
    EXPECT_EQ(box.text(), "x CLAS");
}

TEST_F(Keyboard, ColoursAfterEveryKindOfChange)
{
    const auto undone = [this] {
        withControl(Qt::Key_Z);
        return std::string(box.text());
    };
    open("x ");
    QGuiApplication::clipboard()->setText("y //z\nMAN");
    withControl(Qt::Key_V);
    EXPECT_EQ(marked(box), "x y //z\r\n<N:Man|>") << "pasted: the word at the caret only";
    EXPECT_EQ(undone(), "x ");

    open("x CLASSa");
    key(Qt::Key_Backspace);
    EXPECT_EQ(marked(box), "x <L:class|>");
    EXPECT_EQ(undone(), "x CLASSa");

    open("x CLA\r\nSS");
    box.select(5, 0);
    key(Qt::Key_Delete);
    EXPECT_EQ(marked(box), "x <L:cla|ss>");
    EXPECT_EQ(undone(), "x CLA\r\nSS");

    open("x CLAxyS");
    box.select(5, 2);
    type("S");
    EXPECT_EQ(marked(box), "x <L:clas|s>") << "typed over a selection";
    EXPECT_EQ(undone(), "x CLAxyS");

    open("x class");
    type("y");
    EXPECT_EQ(marked(box), "x classy|");
    undone();
    EXPECT_EQ(marked(box), "x <L:class|>");
}

} // namespace kitwright
