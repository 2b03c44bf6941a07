// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/stringtable_window.h"

#include "platform/check_list.h"
#include "support/fake_host.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace kitwright {
namespace {

class StringtableWindowTest : public ::testing::Test {
protected:
    StringtableWindowTest()
    {
        fake.files.files["/program/Bfdata/kitwright/languages.dat"] = "English,1\r\nCzech\r\n";
        window = std::make_unique<Form4>(fake.context);
        window->show();
    }

    template <class Control>
    Control& control(const char* name) const
    {
        return *window->findChild<Control*>(QString::fromLatin1(name));
    }

    void click(const char* button) { QTest::mouseClick(&control<QPushButton>(button), Qt::LeftButton); }
    CheckList& keys() const { return control<CheckList>("List1"); }
    QListWidget& languages() const { return control<QListWidget>("List2"); }
    QLineEdit& keyBox() const { return control<QLineEdit>("Text1"); }
    QPlainTextEdit& textBox() const { return control<QPlainTextEdit>("Text2"); }

    void chooseLanguage(int row)
    {
        const QPoint place = languages().visualItemRect(languages().item(row)).center();
        QTest::mouseClick(languages().viewport(), Qt::LeftButton, {}, place);
    }

    QStringList labels() const
    {
        QStringList result;
        for (int row = 0; row < keys().count(); ++row)
            result += keys().item(row)->text();
        return result;
    }

    std::string written(const std::string& folder = "/a/")
    {
        window->WriteStringtable(folder + "Stringtable.csv");
        return fake.files.files[folder + "Stringtable.csv"];
    }

    std::string enabledControls() const
    {
        std::string names;
        for (const char* name :
             {"List1", "List2", "Command1", "Command2", "Command3", "Command4", "Command5", "Text1", "Text2"}) {
            if (control<QWidget>(name).isEnabled())
                names += std::string(name) + ' ';
        }
        return names;
    }

    testing::FakeContext fake;
    std::unique_ptr<Form4> window;
};

const char* const withoutKeys = "Command1 Command4 Command5 Text1 ";
const char* const withKeys = "List1 List2 Command1 Command2 Command3 Command4 Command5 Text1 Text2 ";

TEST_F(StringtableWindowTest, AnAuthorBuildsATable)
{
    EXPECT_EQ(enabledControls(), withoutKeys);
    QTest::keyClicks(&keyBox(), "LOST");
    click("Command1");
    EXPECT_EQ(enabledControls(), withKeys);
    EXPECT_EQ(keyBox().text(), "");
    QTest::keyClicks(&keyBox(), "NAME_A");
    EXPECT_EQ(keys().item(0)->toolTip(), "NAME_A");
    chooseLanguage(0);
    QTest::keyClicks(&textBox(), "Gun");
    chooseLanguage(1);
    textBox().setPlainText(QStringLiteral("Puška"));
    click("Command1");
    keyBox().setText("NAME_B");
    keys().item(1)->setCheckState(Qt::Unchecked);
    EXPECT_EQ(written(), "LANGUAGE,English,Czech\r\n$STRM_NAME_A,Gun,Pu\x9Aka\r\n");
    keys().item(1)->setCheckState(Qt::Checked);
    EXPECT_EQ(written(), "LANGUAGE,English,Czech\r\n$STRM_NAME_A,Gun,Pu\x9Aka\r\n$STRM_NAME_B,,\r\n");

    click("Command5");
    EXPECT_EQ(fake.host.saves, 1);
    EXPECT_TRUE(window->isVisible());
    click("Command4");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(keys().count(), 2);
}

TEST_F(StringtableWindowTest, AnotherKeyLeavesTheTextUntilALanguageIsClicked)
{
    click("Command1");
    chooseLanguage(0);
    textBox().setPlainText("first");
    click("Command1");
    EXPECT_EQ(textBox().toPlainText(), "first");
    chooseLanguage(0);
    EXPECT_EQ(textBox().toPlainText(), "");
    keys().setCurrentRow(0);
    EXPECT_EQ(textBox().toPlainText(), "");
    QTest::keyClicks(&textBox(), "x");
    EXPECT_EQ(window->table().entry(0).Texts[0], "x");
}

TEST_F(StringtableWindowTest, RemovedKeysLeaveTheOthersInStep)
{
    for (const char* key : {"A", "B", "C"}) {
        click("Command1");
        keyBox().setText(key);
    }
    keys().setCurrentRow(1);
    click("Command2");
    keyBox().setText("stored nowhere");
    click("Command2");
    click("Command1");
    EXPECT_EQ(labels(), (QStringList{"String 1", "String 3", "String 3"}));
    EXPECT_EQ(window->table().entry(2), (StringEntry{"", {"", ""}}));
    EXPECT_EQ(written(), "LANGUAGE,English,Czech\r\n$STRM_A,,\r\n$STRM_C,,\r\n$STRM_,,\r\n");
    for (int row = 2; row >= 0; --row) {
        keys().setCurrentRow(row);
        click("Command2");
    }
    EXPECT_EQ(enabledControls(), "Command1 Command4 Text1 ");
    click("Command1");
    EXPECT_EQ(labels(), QStringList{"String 1"});
    EXPECT_EQ(enabledControls(), withKeys);
    click("Command3");
    EXPECT_EQ(written(), "LANGUAGE,English,Czech\r\n");
}

TEST_F(StringtableWindowTest, AMissingLanguagesFileGivesKeysWithoutTexts)
{
    fake.files.files.clear();
    window = std::make_unique<Form4>(fake.context);
    click("Command1");
    keyBox().setText("A");
    textBox().setPlainText("lost");
    EXPECT_EQ(written(), "LANGUAGE,\r\n$STRM_A,\r\n");
}

TEST_F(StringtableWindowTest, OpeningADocumentShowsItsTable)
{
    const std::string file = "LANGUAGE,English,Klingon\r\n//x\r\n$STRM_A,\"a\xA0\nb\",k\r\n$STRM_B,b\r\n";
    fake.files.files["/a/Stringtable.csv"] = file;
    click("Command1");
    click("Command1");
    keyBox().setText("NEVER");
    keys().item(1)->setCheckState(Qt::Unchecked);
    keys().setCurrentRow(0);
    click("Command2");
    window->readTable("/a/config.cpp");
    EXPECT_EQ(labels(), (QStringList{"String 2", "String 2", "String 3"}));
    EXPECT_EQ(keys().item(1)->toolTip(), "A");
    EXPECT_EQ(languages().count(), 3);
    EXPECT_EQ(keys().currentRow(), -1);
    // Looking at everything changes nothing.
    for (int row = 0; row < keys().count(); ++row) {
        keys().setCurrentRow(row);
        for (int language = 0; language < languages().count(); ++language)
            chooseLanguage(language);
    }
    EXPECT_EQ(written(), file);
    keys().setCurrentRow(1);
    chooseLanguage(0);
    QTest::keyClicks(&textBox(), "c");
    EXPECT_EQ(written(), "LANGUAGE,English,Klingon\r\n//x\r\n$STRM_A,\"ca\xA0\nb\",k\r\n$STRM_B,b\r\n");

    window->readTable("/c/config.cpp");
    EXPECT_EQ(labels(), QStringList{"String 2"});
    EXPECT_EQ(languages().count(), 2);
}

TEST_F(StringtableWindowTest, KeysOfAFolderThatIsSavedToAreListed)
{
    fake.files.files["/b/Stringtable.csv"] = "LANGUAGE,English,Klingon\r\n$STRM_B,b,k\r\n";
    EXPECT_EQ(written("/b/"), "LANGUAGE,English,Klingon\r\n$STRM_B,b,k\r\n");
    EXPECT_EQ(labels(), QStringList{"String 1"});
    EXPECT_TRUE(keys().isTicked(0));
    EXPECT_EQ(languages().count(), 3);
    EXPECT_EQ(enabledControls(), withKeys);
}

TEST_F(StringtableWindowTest, TakesOnlyWhatTheFileCanHold)
{
    click("Command1");
    chooseLanguage(0);
    textBox().setPlainText(QStringLiteral("a–日b"));
    EXPECT_EQ(textBox().toPlainText(), QStringLiteral("a–b"));
    QTest::keyClicks(&textBox(), "x");
    keyBox().setText(QStringLiteral("K日K"));
    EXPECT_EQ(written(), "LANGUAGE,English,Czech\r\n$STRM_KK,xa\x96"
                         "b,\r\n");
}

} // namespace
} // namespace kitwright
