// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/colour_maker.h"

#include "services/colour_box.h"
#include "support/fake_host.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

struct ColourMaker : ::testing::Test {
    ColourMaker() { window.show(); }

    void pick(std::optional<std::uint32_t> answer)
    {
        fake.dialogs.colourAnswers.push_back(answer);
        QTest::mouseClick(swatch, Qt::LeftButton);
    }

    testing::FakeContext fake;
    Form9 window{fake.context};
    ColourBox* swatch = window.findChild<ColourBox*>("Picture1");
    QLineEdit* alpha = window.findChild<QLineEdit*>("txtralpha");
    QLineEdit* result = window.findChild<QLineEdit*>("txtvysledek");
    QPushButton* makeIt = window.findChild<QPushButton*>("Command1");
};

} // namespace

TEST_F(ColourMaker, KeepsTheAlphaBetweenNoneAndAll)
{
    const std::pair<const char*, const char*> cases[] = {{"-5", "0"},      {"250", "100"},   {"100.5", "100"},
                                                         {"12.5", "12.5"}, {"half", "half"}, {"-", "-"}};
    for (const auto& [typed, kept] : cases) {
        alpha->setText(typed);
        EXPECT_EQ(alpha->text(), kept);
    }
}

TEST_F(ColourMaker, KeepsItsStateOnOkAndDiscardsItOnTheCloseBox)
{
    const std::uint32_t unpicked = swatch->bgr();
    makeIt->click();
    const QString atFirst = result->text();
    pick(0x0080FF);
    pick(std::nullopt);
    EXPECT_EQ(swatch->palette().color(swatch->backgroundRole()), QColor(255, 128, 0));
    QTest::keyClicks(alpha, "50");
    makeIt->click();

    window.findChild<QPushButton*>("Command2")->click();
    EXPECT_FALSE(window.isVisible());
    window.show();
    EXPECT_EQ(swatch->bgr(), 0x0080FFU);
    EXPECT_EQ(result->text(), "{1.02,0.512,0.0,0.5}");

    window.close();
    window.show();
    EXPECT_EQ(swatch->bgr(), unpicked);
    EXPECT_EQ(alpha->text() + result->text(), "");
    makeIt->click();
    EXPECT_EQ(result->text(), atFirst);
}

} // namespace kitwright
