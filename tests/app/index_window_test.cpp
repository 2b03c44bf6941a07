// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/index_window.h"

#include "platform/qt_text.h"
#include "support/fake_host.h"
#include "support/style_marks.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>

namespace kitwright {

namespace {

/// The index of "CfgPatches", "class", "Man", "odd", "requiredVersion", "units[]" and "Škoda".
struct IndexWindow : ::testing::Test {
    testing::FakeContext fake;
    KeywordList keywords = testing::sampleKeywords();
    frmrejstrik2 window{fake.context, keywords, nullptr};
    QLineEdit& txtprikaz = *window.findChild<QLineEdit*>("txtprikaz");
    QListWidget& List1 = *window.findChild<QListWidget*>("List1");

    IndexWindow()
    {
        fake.state.TextTable[62] = "command";
        fake.state.TextTable[63] = "C word";
        fake.state.TextTable[64] = "class name";
        window.showKeywords();
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// The selected keyword and what the window says of it.
    std::string shown()
    {
        return fromQt(List1.currentItem()->text() + ": " + window.findChild<QLabel*>("lbltyp")->text());
    }

    void type(const char* keys)
    {
        for (const QChar& character : toQt(keys))
            QTest::sendKeyEvent(QTest::Click, &txtprikaz, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }

    void key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
};

} // namespace

TEST_F(IndexWindow, FindsTheFirstKeywordThatBeginsWithWhatIsTyped)
{
    EXPECT_EQ(QApplication::focusWidget(), &txtprikaz);
    EXPECT_EQ(List1.count(), keywords.count());
    EXPECT_EQ(shown(), "CfgPatches: C word") << "at first";
    const std::pair<const char*, const char*> cases[] = {{"cfg", "CfgPatches: C word"},
                                                         {"M", "Man: class name"},
                                                         {"CL", "class: C word"},
                                                         {"rEQ", "requiredVersion: command"},
                                                         {"xyz", "requiredVersion: command"},
                                                         {"šk", "Škoda: class name"},
                                                         {"odd", "odd: class name"}};
    for (const auto& [text, expected] : cases) {
        txtprikaz.clear();
        type(text);
        EXPECT_EQ(shown(), expected) << text;
        txtprikaz.clear();
        EXPECT_EQ(shown(), expected) << "cleared after " << text;
    }
}

TEST_F(IndexWindow, IsWalkedFromTheSearchBox)
{
    type("man");
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(shown(), "requiredVersion: command");
    key(Qt::Key_Up);
    key(Qt::Key_Up);
    EXPECT_EQ(shown(), "Man: class name");
    key(Qt::Key_PageUp);
    EXPECT_EQ(shown(), "CfgPatches: C word");
    EXPECT_EQ(QApplication::focusWidget(), &txtprikaz);
    EXPECT_EQ(txtprikaz.text(), "man");

    const QRect last = List1.visualItemRect(List1.item(List1.count() - 1));
    QTest::mouseClick(List1.viewport(), Qt::LeftButton, {}, last.center());
    EXPECT_EQ(shown(), "Škoda: class name");
}

TEST_F(IndexWindow, KeepsItsStateWhileItIsHidden)
{
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"Enter", [&] { key(Qt::Key_Return); }},
        {"Esc", [&] { key(Qt::Key_Escape); }},
        {"Enter in the list", [&] { List1.setFocus(), key(Qt::Key_Enter); }},
        {"Ok", [&] { window.findChild<QPushButton*>("cmdok")->click(); }},
        {"close box", [&] { window.close(); }},
    };
    type("un");
    for (const auto& [name, hide] : cases) {
        hide();
        EXPECT_FALSE(window.isVisible()) << name;
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        EXPECT_EQ(shown(), "units[]: command") << name;
        EXPECT_EQ(txtprikaz.text(), "un") << name;
    }
}

} // namespace kitwright
