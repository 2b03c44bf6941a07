// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/check_list.h"
#include "support/running_application.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include <algorithm>

namespace kitwright::testing {
namespace {

/// A day of an author: an add-on made by clicking alone.
class AuthorsSession : public ::testing::Test {
protected:
    AuthorsSession()
    {
        run.file("/models/gun.p3d") = "gun model";
        run.file("/pictures/hlava.jpg") = "head picture";
        run.startWith();
        run.dialogs.saveAnswers = {"/addons/MyAddon/config.cpp"};
        run.dialogs.textAnswers = {"MyAddon", "1.75"};
    }

    void type(const char* window, const char* box, const char* text)
    {
        run.control<QLineEdit>(box, window).setText(QString::fromUtf8(text));
    }
    void press(const char* window, const char* button) { run.control<QPushButton>(button, window).click(); }

    void setProperty(const char* window, const char* list, const char* property, const char* valueBox,
                     const char* value)
    {
        auto& properties = run.control<CheckList>(list, window);
        auto* entry = properties.findItems(QLatin1String(property), Qt::MatchExactly).value(0);
        ASSERT_NE(entry, nullptr) << property;
        entry->setCheckState(Qt::Checked);
        type(window, valueBox, value);
    }

    void addClass(const char* window, const char* name, const char* base)
    {
        press(window, "cmdadd");
        auto& classes = run.control<CheckList>("List1", window);
        classes.setCurrentRow(classes.count() - 1);
        type(window, "txtname", name);
        run.control<QComboBox>("Combo1", window).setCurrentText(QLatin1String(base));
    }

    void tickNode(const QString& name, const char* value)
    {
        auto& tree = run.control<QTreeWidget>("vlastnosti", "frmvehikl");
        auto* node = tree.findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
        ASSERT_NE(node, nullptr);
        node->setCheckState(0, Qt::Checked);
        if (value)
            type("frmvehikl", "txthodnota", value);
    }

    RunningApplication run;
};

TEST_F(AuthorsSession, MakesAWholeAddonByClicking)
{
    addClass("Form1", "MyGun", "M16");
    setProperty("Form1", "List2", "model", "txthodnota", "/models/gun.p3d");
    addClass("Form1", "MyRifle", "AK74");
    setProperty("Form1", "List2", "displayName", "txthodnota", "\"Puška\"");
    press("Form1", "Command1");

    run.control<QRadioButton>("Option2", "Form3").click();
    addClass("Form3", "MyShell", "Shell73");
    setProperty("Form3", "List2", "hit", "txthodnota", "900");
    press("Form3", "Command1");

    run.control<QRadioButton>("Option2", "frmvehikl").click();
    type("frmvehikl", "txtjmeno", "MyTank");
    auto& bases = run.control<QListWidget>("List1", "frmvehikl");
    bases.setCurrentItem(bases.findItems(QStringLiteral("Tank"), Qt::MatchExactly).value(0));
    tickNode(QStringLiteral("armor"), "300");
    tickNode(QStringLiteral("Turret"), nullptr);
    press("frmvehikl", "Command2");

    run.control<QRadioButton>("Option2", "frmfaceaddon").click();
    press("frmfaceaddon", "Command1");
    type("frmfaceaddon", "txtnazev", "MyHead");
    setProperty("frmfaceaddon", "seznam2", "texture", "Text1", "/pictures/hlava.jpg");
    press("frmfaceaddon", "cmdok");
    run.use("cmdsave");

    run.startWith();
    run.dialogs.openAnswers = {"/addons/MyAddon/config.cpp"};
    run.use("cmdopen");
    const std::string text = run.text();
    for (const char* part :
         {"units[]={MyTank};", "weapons[]={MyRifle,MyGun};", "requiredVersion=1.75;",
          "   class MyGun: M16\r\n   {\r\n      model = \"\\MyAddon\\gun.p3d\";\r\n   };\r\n",
          "   class MyRifle: AK74\r\n   {\r\n      displayName = \"Puška\";\r\n   };\r\n};\r\n",
          "class CfgAmmo\r\n{\r\n   class MyShell: Shell73\r\n   {\r\n      hit = 900;\r\n   };\r\n};\r\n",
          "      armor = 300;\r\n      class Turret\r\n      {\r\n      };\r\n   };\r\n};\r\n",
          "   class MyHead\r\n   {\r\n      texture = \"hlava.jpg\";\r\n   };\r\n};\r\n"})
        EXPECT_NE(text.find(part), std::string::npos) << part << "\nis not in\n" << text;
    EXPECT_EQ(std::count(text.begin(), text.end(), '{'), std::count(text.begin(), text.end(), '}'));
    EXPECT_EQ(run.file("/addons/MyAddon/gun.p3d"), "gun model");
    EXPECT_EQ(run.file("/addons/MyAddon/hlava.jpg"), "head picture");
    EXPECT_EQ(run.state().PatchClassName, "MyAddon");
}

} // namespace
} // namespace kitwright::testing
