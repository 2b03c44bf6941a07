// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/find_bar.h"

#include "editor/scintilla_control.h"

#include <QAbstractButton>
#include <QTest>
#include <gtest/gtest.h>

namespace kitwright {

TEST(FindBar, GoesRoundThroughThePlacesByButtonsThatHaveNames)
{
    ScintillaControl control;
    auto* bar = new FindBar(control);
    control.setText("Ab ab aB");
    control.show();
    QTest::keyClick(&control, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(bar->findChild<QWidget*>("findText"), "AB");
    const auto place = [&] { return control.SendScintilla(QsciScintillaBase::SCI_GETSELECTIONSTART); };
    EXPECT_EQ(place(), 0);
    std::map<QString, QAbstractButton*> buttons;
    for (auto* button : bar->findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly))
        buttons[button->accessibleName()] = button;
    for (const auto& [name, expected] :
         {std::pair("Find next", 3), {"Find next", 6}, {"Find next", 0}, {"Find previous", 6}}) {
        buttons.at(name)->click();
        EXPECT_EQ(place(), expected) << name;
    }
}

} // namespace kitwright
