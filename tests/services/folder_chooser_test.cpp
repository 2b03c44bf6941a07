// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/folder_chooser.h"

#include "platform/qt_file_system.h"
#include "platform/qt_text.h"
#include "support/fake_host.h"

#include <QComboBox>
#include <QDir>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

/// A chooser that starts in a folder with the subfolders "Alpha" (which holds "Inner"), "beta" and a hidden one.
struct FolderChooser : ::testing::Test {
    FolderChooser()
    {
        for (const char* folder : {"Alpha/Inner", "beta", ".hidden"})
            QDir(disk.path()).mkpath(folder);
        fake.state.Settings.PboFolder = top;
        window.show();
    }

    QPoint at(const QString& name)
    {
        const auto found = list->findItems(name, Qt::MatchExactly);
        return found.isEmpty() ? QPoint(-1, -1) : list->visualItemRect(found.back()).center();
    }

    void click(const QString& name) { QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at(name)); }

    /// All that a mouse sends, the release over the list's new entries included.
    void doubleClick(const QString& name)
    {
        const QPoint point = at(name);
        click(name);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, point);
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, point);
    }

    /// The entries from the open folder downwards.
    QStringList shown() const
    {
        QStringList names;
        for (int row = list->currentRow(); row < list->count(); ++row)
            names += list->item(row)->text();
        return names;
    }

    QTemporaryDir disk;
    const std::string top = fromQt(disk.path());
    const QString topName = QDir(disk.path()).dirName();
    testing::FakeContext fake;
    QtFileSystem files;
    Context context{fake.state, files, fake.texts, fake.dialogs, fake.host};
    Form6 window{context};
    QListWidget* list = window.findChild<QListWidget*>("Dir1");
};

} // namespace

TEST_F(FolderChooser, PicksTheOpenFolderOnASingleClickAndOpensOnADoubleClick)
{
    EXPECT_EQ(list->item(0)->text(), QDir::rootPath());
    EXPECT_EQ(shown(), QStringList({topName, "Alpha", "beta"}));
    click("beta");
    EXPECT_EQ(window.FolderPath, top);
    doubleClick("Alpha");
    EXPECT_EQ(shown(), QStringList({"Alpha", "Inner"}));
    EXPECT_EQ(window.FolderPath, top);
    click("Alpha");
    EXPECT_EQ(window.FolderPath, top + "/Alpha");
    for (int use = 0; use < 2; ++use, window.show()) {
        window.findChild<QPushButton*>("Command1")->click();
        EXPECT_FALSE(window.isVisible());
        EXPECT_EQ(window.FolderPath, top + "/Alpha");
    }
    doubleClick(topName);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(shown(), QStringList({"Alpha", "Inner"}));
}

TEST_F(FolderChooser, ForgetsThePickWhenClosedByItsCloseBox)
{
    doubleClick("Alpha");
    window.close();
    EXPECT_EQ(window.FolderPath, "");
    window.show();
    EXPECT_EQ(shown().front(), topName);
}

TEST_F(FolderChooser, LeavesTheListAsItWasWhenAFolderCannotBeRead)
{
    QDir(disk.path()).rmdir("beta");
    doubleClick("beta");
    EXPECT_EQ(list->item(list->currentRow() - 1)->text(), "Alpha");
}

TEST_F(FolderChooser, MovesToADriveWithoutPickingIt)
{
    auto* drives = window.findChild<QComboBox*>("Drive1");
    drives->setCurrentIndex(drives->findText(QDir::toNativeSeparators(QDir::homePath())));
    EXPECT_EQ(list->currentItem()->toolTip(), QDir::toNativeSeparators(QDir::homePath()));
    drives->setCurrentIndex(0);
    EXPECT_EQ(list->currentRow(), 0);
    EXPECT_EQ(window.FolderPath, "");
}

} // namespace kitwright
