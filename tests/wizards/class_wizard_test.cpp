// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/class_wizard.h"

#include "wizard_driver.h"

#include <QCheckBox>
#include <QComboBox>

namespace kitwright::testing {

namespace {

class ClassWizardWindow : public WizardTest {
protected:
    ClassWizardWindow()
    {
        putData("kitwrightweapon.dat", "shotSpeed,1; metres a second\r\nshapeFile,2\r\ndisplayText\r\n");
        putData("addweapons.dat", "Riffle\r\nBaseGun\r\nak47\r\n");
        fake.files.files["C:/models/mygun.p3d"] = "model";
    }

    void open(const ClassWizardSettings& settings = weaponWizard)
    {
        m_wizard = std::make_unique<ClassWizard>(settings, fake.context, classes);
        window = m_wizard.get();
        window->show();
        control<QRadioButton>("Option2").setChecked(true);
    }

    /// Chooses as the keyboard does: an entry that the box shows already is chosen all the same.
    void chooseBase(const char* name)
    {
        auto& bases = control<QComboBox>("Combo1");
        bases.setCurrentText(QString::fromLatin1(name));
        Q_EMIT bases.activated(bases.currentIndex());
    }

    /// The class of the examples, added and entered.
    void enterExample(const char* name = "MyGun")
    {
        click("cmdadd");
        list("List1").setCurrentRow(list("List1").count() - 1);
        type("txtname", name);
        chooseBase("BaseGun");
        tick("List2", 0);
        type("txthodnota", "900");
        tick("List2", 1);
        type("txthodnota", R"(C:\models\mygun.p3d)");
    }

    static std::string exampleBlock(const std::string& before = {})
    {
        return "\r\nclass CfgWeapons\r\n{\r\n" + before
             + "   class MyGun: BaseGun\r\n   {\r\n      shotSpeed = 900;\r\n"
               "      shapeFile = \"\\MyAddon\\mygun.p3d\";\r\n   };\r\n};\r\n";
    }

    static std::string registered(std::string names)
    {
        std::string text = openDocument;
        return text.insert(text.find("weapons[]={") + 11, names);
    }

    std::vector<ClassRecord> classes;

private:
    std::unique_ptr<ClassWizard> m_wizard;
};

const std::initializer_list<const char*> editingControls = {"cmddel",   "cmddelall", "txtname", "txthodnota",
                                                            "Command6", "Combo1",    "List2"};

TEST_F(ClassWizardWindow, ExampleIsRegisteredWrittenAndItsModelCopied)
{
    open();
    EXPECT_EQ(window->objectName(), "Form1");
    EXPECT_EQ(enabled(editingControls), "");
    enterExample();
    click("Command1");
    EXPECT_EQ(document(), registered("MyGun") + exampleBlock());
    EXPECT_EQ(fake.files.files["D:/addons/MyAddon/mygun.p3d"], "model");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(fake.host.colourings, 1);
    EXPECT_EQ(fake.host.saves, 0);

    // Nothing was cleared: a second OK writes the same again, as one more undo step.
    window->show();
    click("Command1");
    EXPECT_EQ(document(), registered("MyGun,MyGun") + exampleBlock() + exampleBlock());
    fake.host.editor.undo();
    fake.host.editor.undo();
    EXPECT_EQ(document(), openDocument);
}

TEST_F(ClassWizardWindow, AmmunitionHasListsOfItsOwnAndIsNotRegistered)
{
    putData("kitwrightammo.dat", "shotSpeed,1\r\nshapeFile,2\r\n");
    putData("addammo.dat", "BaseGun\r\n");
    open(ammoWizard);
    EXPECT_EQ(window->objectName(), "Form3");
    enterExample();
    EXPECT_EQ(entries("List1"), "Munice 1+|");
    fake.dialogs.openAnswers = {std::nullopt, "/m/mygun.p3d"};
    click("Command6");
    EXPECT_EQ(classes[0].Properties[1].Value, R"(C:\models\mygun.p3d)");
    click("Command6");
    EXPECT_EQ(fake.dialogs.openAsked.at(0).filter, "Všechny soubory|*.*");
    click("Command1");
    EXPECT_TRUE(document().ends_with("      shapeFile = \"/m/mygun.p3d\";\r\n   };\r\n};\r\n"));
    EXPECT_TRUE(document().starts_with(openDocument + "\r\nclass CfgAmmo\r\n{\r\n   class MyGun: BaseGun\r\n"));
}

TEST_F(ClassWizardWindow, DeclarationsStandInFrontOfEachClassThatIsInTheTree)
{
    addTreeLines("* W *\r   Default\r      BaseGun\r", fake.host.classTree);
    open();
    enterExample();
    control<QCheckBox>("Check1").setChecked(true);
    click("Command1");
    EXPECT_EQ(document(), registered("MyGun")
                              + exampleBlock("\r\n   class Default {};\r\n   class BaseGun: Default {};\r\n\r\n"));
    EXPECT_EQ(fake.host.colourings, 1);
    EXPECT_EQ(fake.host.editor.undoSteps(), 1);
}

TEST_F(ClassWizardWindow, NewAddonAsksUntilThereIsAPathAndForANameOnlyIfThereIsNone)
{
    open();
    control<QRadioButton>("Option1").setChecked(true);
    fake.state.PatchClassName.clear();
    fake.dialogs.textAnswers = {"MyAddon"};
    for (int run = 1; run <= 2; ++run) {
        fake.host.savePaths = {"", "", "/new/config.cpp"};
        click("Command1");
        EXPECT_EQ(fake.host.saves, 3 * run);
        EXPECT_EQ(fake.state.CurrentFile, "/new/config.cpp");
        EXPECT_EQ(fake.dialogs.prompts, std::vector<std::string>{"Name?"});
        EXPECT_EQ(document(), openDocument + "\r\nclass CfgWeapons\r\n{\r\n};\r\n");
        EXPECT_EQ(fake.host.editor.undoSteps(), run);
    }
}

TEST_F(ClassWizardWindow, ListAndRecordsStayInStepThroughRemovals)
{
    open();
    click("cmddel");
    for (const char* name : {"A", "B", "C"})
        enterExample(name);
    list("List1").setCurrentRow(1);
    click("cmddel");
    EXPECT_EQ(entries("List1"), "Zbraň 1+|Zbraň 3+|");
    click("cmddel"); // Nothing is highlighted now.
    EXPECT_EQ(classes.size(), 2U);
    click("cmdadd");
    EXPECT_EQ(entries("List1"), "Zbraň 1+|Zbraň 3+|Zbraň 3+|");
    list("List1").setCurrentRow(1);
    EXPECT_EQ(typed("txtname"), "C");
    list("List1").setCurrentRow(2);
    EXPECT_EQ(typed("txtname"), "");
    EXPECT_EQ(classes[2].BaseClass, "");
    EXPECT_EQ(entries("List2"), "shotSpeed|shapeFile|displayText|");
    tick("List1", 1, false);
    click("Command1");
    EXPECT_TRUE(document().starts_with(registered("A"))) << document();

    for (int i = 0; i < 3; ++i) {
        list("List1").setCurrentRow(0);
        click("cmddel");
    }
    EXPECT_TRUE(classes.empty());
    EXPECT_EQ(enabled(editingControls), "");
    click("cmdadd");
    EXPECT_EQ(entries("List1"), "Zbraň 1+|");
    EXPECT_EQ(enabled(editingControls), "cmddel cmddelall txtname txthodnota Command6 Combo1 List2 ");
}

TEST_F(ClassWizardWindow, ChoicesReachTheHighlightedClassOnly)
{
    open();
    click("cmdadd");
    type("txtname", "nobody's");
    tick("List2", 0);
    EXPECT_EQ(classes[0].Name, "");
    EXPECT_FALSE(classes[0].Properties[0].Used);

    click("cmdadd");
    list("List1").setCurrentRow(0);
    EXPECT_EQ(entries("List2"), "shotSpeed|shapeFile|displayText|");
    auto& bases = control<QComboBox>("Combo1");
    EXPECT_EQ(fromQt(bases.currentText()), "ak47");
    EXPECT_EQ(classes[0].BaseClass, "");
    chooseBase("ak47");
    EXPECT_EQ(classes[0].BaseClass, "ak47");
    list("List1").setCurrentRow(1);
    bases.setCurrentText("Riffle");
    list("List1").setCurrentRow(0);
    EXPECT_EQ(fromQt(bases.currentText()), "ak47");
    EXPECT_EQ(classes[1].BaseClass, "Riffle");

    list("List2").setCurrentRow(1);
    EXPECT_TRUE(control<>("Command6").isEnabled());
    list("List2").setCurrentRow(0);
    EXPECT_FALSE(control<>("Command6").isEnabled());
    EXPECT_EQ(list("List2").item(0)->toolTip(), "metres a second");
    type("txthodnota", "žluť \"1\\\"");
    list("List2").setCurrentRow(2);
    EXPECT_EQ(typed("txthodnota"), "");
    list("List2").setCurrentRow(0);
    EXPECT_EQ(typed("txthodnota"), "žluť \"1\\\"");
}

TEST_F(ClassWizardWindow, ModelsOfAnUnsavedDocumentGoWhereItIsSavedOrNowhere)
{
    fake.files.unwritable = {"/locked/mygun.p3d"};
    open();
    enterExample();
    for (const char* savedAs : {"", "/locked/config.cpp", "/saved/config.cpp"}) { // The first: cancelled.
        fake.state.CurrentFile.clear();
        fake.host.editor.loadText(openDocument);
        fake.host.savePaths = {savedAs};
        fake.host.saves = 0;
        click("Command1");
        EXPECT_EQ(fake.host.saves, 1);
        EXPECT_EQ(document(), registered("MyGun") + exampleBlock());
        EXPECT_EQ(fake.files.files.contains("/saved/mygun.p3d"), std::string(savedAs) == "/saved/config.cpp");
    }
    EXPECT_EQ(fake.files.writes, 1);
}

TEST_F(ClassWizardWindow, MissingCataloguesLeaveEmptyListsAndForeignCharactersStayOut)
{
    fake.files.files.clear();
    fake.state.PatchClassName.clear();
    open();
    click("cmdadd");
    list("List1").setCurrentRow(0);
    type("txtname", "Žluť→");
    click("Command1");
    EXPECT_EQ(fake.dialogs.prompts, std::vector<std::string>{"Name?"});
    EXPECT_EQ(document(),
              registered("Žluť") + "\r\nclass CfgWeapons\r\n{\r\n   class Žluť: \r\n   {\r\n   };\r\n};\r\n");
}

TEST_F(ClassWizardWindow, EnterGoesOnAndEscHidesWithoutForgetting)
{
    open();
    enterExample();
    window->activateWindow();
    control<QLineEdit>("txtname").setFocus();
    QTest::keyClick(&control<QLineEdit>("txtname"), Qt::Key_Return);
    EXPECT_EQ(document(), openDocument);
    EXPECT_EQ(window->focusWidget(), &control<QComboBox>("Combo1"));
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    window->show();
    EXPECT_EQ(typed("txtname"), "MyGun");
    window->close();
    EXPECT_EQ(classes.size(), 1U);
}

} // namespace

} // namespace kitwright::testing
