// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/browser_tree.h"
#include "support/running_application.h"
#include "support/style_marks.h"

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

constexpr const char* classLines = "Men\r\n   Man\r\n      Soldier\r\n         Sniper\r\n   \x8E"
                                   "ena\r\n";
constexpr const char* commandLines = "Lists\r\n   units[]\r\nThings\r\n   thing\r\n";

/// The trees beside the document, under mouse and keyboard.
struct Browsers : ::testing::Test {
    testing::RunningApplication app;

    Browsers()
    {
        app.file("/program/Bfdata/kitwright/configclass.dat") = classLines;
        app.file("/program/Bfdata/kitwright/configcommands.dat") = commandLines;
        app.startWith();
        app.state().Settings = testing::distinctStyles();
    }

    BrowserTree& tree(const char* name) { return app.control<BrowserTree>(name); }

    QTreeWidgetItem* item(const char* treeName, const char* text)
    {
        return tree(treeName).findItems(toQt(text), Qt::MatchExactly | Qt::MatchRecursive).at(0);
    }

    void click(const char* treeName, const char* text)
    {
        BrowserTree& shown = tree(treeName);
        shown.scrollToItem(item(treeName, text));
        QTest::mouseClick(shown.viewport(), Qt::LeftButton, {},
                          shown.visualItemRect(item(treeName, text)).center());
    }

    /// What a click makes of a text; "|" is the caret, "[" in front of it the start of a selection.
    std::string clicked(const char* treeName, const char* entry, std::string text)
    {
        const std::size_t start = text.find('[');
        if (start != std::string::npos)
            text.erase(start, 1);
        const std::size_t caret = text.find('|');
        text.erase(caret, 1);
        app.box().loadText(text);
        app.box().select(std::min(start, caret), caret - std::min(start, caret));
        click(treeName, entry);
        return testing::marked(app.box());
    }

    std::string undone()
    {
        QTest::keyClick(&app.control("configedit"), Qt::Key_Z, Qt::ControlModifier);
        return app.text();
    }
};

} // namespace

TEST_F(Browsers, OpenTheirFirstLevel)
{
    EXPECT_EQ(tree("commands").topLevelItemCount(), 2);
    EXPECT_TRUE(item("commands", "Things")->isExpanded());
    EXPECT_TRUE(item("classes", "Men")->isExpanded());
    EXPECT_FALSE(item("classes", "Man")->isExpanded());
    EXPECT_EQ(item("classes", "Sniper")->parent(), item("classes", "Soldier"));
}

TEST_F(Browsers, InsertACommandInThePlaceOfTheNextCharacter)
{
    const struct {
        const char* entry;
        const char* before;
        const char* after;
    } cases[] = {{"thing", "|", "thing |"},
                 {"thing", "a|", "athing |"},
                 {"thing", "a|bc", "athing |c"},
                 {"thing", "a|žc", "athing |c"},
                 {"thing", "a|…c", "athing |c"},
                 {"thing", "a|\r\nb", "athing |b"},
                 {"thing", "|\r\n\r\nb", "thing |\r\nb"},
                 {"thing", "a[bcd|e", "athing |cde"},
                 {"thing", "a[\r\nb|", "athing |b"},
                 {"Things", "a[b|c", "ab|c"},
                 {"units[]", "x |yMAN z", "x units[] |<N:Man> z"}};
    for (const auto& [entry, before, after] : cases)
        EXPECT_EQ(clicked("commands", entry, before), after) << before;
    EXPECT_EQ(undone(), "x yMAN z");
}

TEST_F(Browsers, InsertAClassAndGoToTheEnd)
{
    EXPECT_EQ(clicked("classes", "Sniper", "a|bc\r\n"), "aSniper c\r\n|");
    EXPECT_EQ(clicked("classes", "Žena", "a[b|cd"), "aŽena cd|");
    EXPECT_EQ(clicked("classes", "Men", "a[b|c"), "abc|");
}

TEST_F(Browsers, DeclareAClassWithItsAncestors)
{
    app.state().Settings.DeclareFromRoot = true;
    EXPECT_EQ(clicked("classes", "Sniper", "a| man b"), "a <N:Man> b\r\n"
                                                        "   <L:class> <N:Man> {};\r\n"
                                                        "   <L:class> Soldier: <N:Man> {};\r\n"
                                                        "   <L:class> Sniper: <N:Soldier> {};\r\n\r\n|");
    EXPECT_EQ(undone(), "a man b");
    EXPECT_EQ(clicked("classes", "Žena", "a|b"), "ab\r\n\r\n|");
    EXPECT_EQ(clicked("classes", "Men", "a|b"), "ab|");
}

TEST_F(Browsers, AreUsedFromTheKeyboard)
{
    BrowserTree& commands = tree("commands");
    commands.setFocus();
    QTest::keyClicks(&commands, "th");
    EXPECT_EQ(commands.currentItem(), item("commands", "Things"));
    QTest::keyClick(&commands, Qt::Key_Down);
    EXPECT_EQ(app.text(), "") << "walking is no click";
    QTest::keyClick(&commands, Qt::Key_Return);
    QTest::keyClick(&commands, Qt::Key_Enter);
    EXPECT_EQ(app.text(), "thing thing ");
}

TEST_F(Browsers, TellTheWayToAnEntry)
{
    BrowserTree& classes = tree("classes");
    classes.expandAll();
    const QPoint place = classes.visualItemRect(item("classes", "Sniper")).center();
    QHelpEvent event(QEvent::ToolTip, place, classes.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(classes.viewport(), &event);
    EXPECT_EQ(fromQt(QToolTip::text()), "Men › Man › Soldier › Sniper");
}

} // namespace kitwright
