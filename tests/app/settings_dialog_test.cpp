// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/settings_dialog.h"

#include "services/colour_box.h"
#include "support/fake_host.h"

#include <QCheckBox>
#include <QTest>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

using S = EditorSettings;

struct SettingsDialog : ::testing::Test {
    testing::FakeContext fake;
    S& settings = fake.state.Settings;
    Form5 window{fake.context, [] { return std::string(); }};
};

} // namespace

TEST_F(SettingsDialog, WritesEachTickIntoItsField)
{
    const std::pair<const char*, bool S::*> cases[] = {
        {"CCPT", &S::CKeywordBold},      {"CCPK", &S::CKeywordItalic},       {"classT", &S::ClassNameBold},
        {"FCPT", &S::ConfigKeywordBold}, {"FCPK", &S::ConfigKeywordItalic},  {"classK", &S::ClassNameItalic},
        {"KTB", &S::CommentBold},        {"KTK", &S::CommentItalic},         {"Check1", &S::InsertBaseText},
        {"Check2", &S::DeclareFromRoot}, {"Check3", &S::KeywordColouringOff}};
    for (const auto& [name, field] : cases) {
        auto* box = window.findChild<QCheckBox*>(name);
        ASSERT_TRUE(box) << name;
        EXPECT_EQ(box->isChecked(), settings.*field) << name;
        S expected = settings;
        expected.*field = !(settings.*field);
        box->click();
        EXPECT_EQ(settings, expected) << name;
    }
}

TEST_F(SettingsDialog, WritesEachChosenColourIntoItsField)
{
    const std::pair<const char*, std::uint32_t S::*> cases[] = {{"CCPB", &S::CKeywordColor},
                                                                {"FCPB", &S::ConfigKeywordColor},
                                                                {"classB", &S::ClassNameColor},
                                                                {"KTC", &S::CommentColor}};
    for (const auto& [name, field] : cases) {
        auto* box = window.findChild<ColourBox*>(name);
        ASSERT_TRUE(box) << name;
        EXPECT_EQ(box->bgr(), settings.*field) << name;
        S expected = settings;
        expected.*field = 0x123456;
        fake.dialogs.colourAnswers = {0x123456, std::nullopt};
        QTest::mouseClick(box, Qt::LeftButton);
        QTest::mouseClick(box, Qt::LeftButton);
        EXPECT_EQ(settings, expected) << name;
        EXPECT_EQ(box->palette().color(QPalette::Window), QColor(0x56, 0x34, 0x12)) << name;
    }
}

} // namespace kitwright
