// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lang/language_chooser.h"

#include "support/fake_host.h"

#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

const std::string folder = "/program/Bfdata/languages/kitwright/";

struct LanguageChooser : ::testing::Test {
    LanguageChooser()
    {
        for (const char* name : {"readme.txt", "english.lng", "deutsch.LNG", "cestina.lng"})
            fake.files.files[folder + name] = "x";
    }

    testing::FakeContext fake;
    std::vector<std::string> applied;
    std::string& chosen = fake.state.Settings.LanguageFile;
    Form7 window{fake.context, [this](const std::string& path) { applied.push_back(path); }};
    QListWidget* list = window.findChild<QListWidget*>("List1");
    QPushButton* ok = window.findChild<QPushButton*>("Command1");
};

} // namespace

TEST_F(LanguageChooser, ListsTheLanguagesAnewEachTimeAndMarksTheOneInUse)
{
    chosen = folder + "deutsch.LNG";
    window.show();
    EXPECT_EQ(list->count(), 3);
    EXPECT_EQ(list->currentItem()->text(), "deutsch.LNG");
    EXPECT_TRUE(list->currentItem()->font().bold());
    ok->click();
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(applied.empty()) << "the language in use is not read again";

    fake.files.files.erase(chosen);
    window.show();
    EXPECT_EQ(list->count(), 2);
    EXPECT_TRUE(list->selectedItems().isEmpty());
}

TEST_F(LanguageChooser, StoresNothingThatIsNoLanguageFile)
{
    window.show();
    QTest::keyClick(list, Qt::Key_Return);
    ok->click();
    list->setCurrentRow(2);
    fake.files.files.erase(folder + "english.lng");
    ok->click();
    EXPECT_TRUE(window.isVisible());
    window.close();
    EXPECT_EQ(chosen, "");
    EXPECT_TRUE(applied.empty());
}

TEST_F(LanguageChooser, AppliesTheChoiceByOkEnterAndDoubleClick)
{
    window.show();
    list->setCurrentRow(0);
    ok->click();
    window.show();
    list->setCurrentRow(1);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    window.show();
    const QPoint english = list->visualItemRect(list->item(2)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, english);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, english);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(applied,
              (std::vector<std::string>{folder + "cestina.lng", folder + "deutsch.LNG", folder + "english.lng"}));
    EXPECT_EQ(chosen, applied.back());
}

} // namespace kitwright
