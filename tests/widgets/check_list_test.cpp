// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/check_list.h"

#include <QStyleOptionViewItem>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>

namespace kitwright {

TEST(CheckList, HighlightsAnEntryHoweverItsTickIsSetButNotForTheProgram)
{
    CheckList list;
    for (const char* text : {"first", "second", "third"})
        list.addEntry(text);
    list.resize(200, 200);
    list.show();
    std::string told;
    QObject::connect(&list, &CheckList::entryClicked, &list, [&](int row) {
        EXPECT_TRUE(list.currentRow() == row && list.item(row)->isSelected());
        told += std::to_string(row) + (list.isTicked(row) ? " ticked. " : ". ");
    });
    const auto click = [&](int row, bool onTickBox) {
        QStyleOptionViewItem option;
        option.initFrom(&list);
        option.rect = list.visualItemRect(list.item(row));
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        const QRect box = list.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, box.center() + QPoint(onTickBox ? 0 : 25, 0));
    };
    const std::pair<std::function<void()>, std::string> cases[] = {
        {[&] { click(1, true); }, "1 ticked. "},
        {[&] { click(2, false); }, "2. "},
        {[&] { click(1, true); }, "1. "},
        {[&] { QTest::keyClick(&list, Qt::Key_Down); }, "2. "},
        {[&] { QTest::keyClick(&list, Qt::Key_Space); }, "2 ticked. "},
        {[&] { list.item(0)->setCheckState(Qt::Checked); }, "0 ticked. "},
        {[&] { list.choose(2); }, "2 ticked. "},
        {[&] { click(2, false); }, "2 ticked. "},
        {[&] { list.choose(3); }, ""}};
    for (const auto& [act, expected] : cases) {
        told.clear();
        act();
        EXPECT_EQ(told, expected);
    }
    list.setTicked(2, false);
    list.setEntryText(0, "renamed");
    list.setTicks({false, true, false, true});
    list.removeEntry(0);
    EXPECT_TRUE(list.isTicked(0));
    EXPECT_FALSE(list.isTicked(1));
    EXPECT_EQ(list.currentRow(), -1);
    list.removeAll();
    EXPECT_EQ(told, "");
}

} // namespace kitwright
