// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/vehicle_wizard.h"

#include "wizard_driver.h"

#include <QCheckBox>
#include <QLabel>
#include <QTreeWidget>

namespace kitwright::testing {

namespace {

class VehicleWizardWindow : public WizardTest {
protected:
    VehicleWizardWindow()
    {
        putData("vehiclehelp.dat",
                "armorValue,0; points\r\ngunBeg,0; other\r\nTurret/gunBeg,0; \"memory point\"\r\n");
        putData("addvehicles.dat", "Zebra\r\nBaseTank\r\n");
        window = &wizard;
    }

    void load(const char* lines = "Vehicle\r   armorValue\r   Turret\r      gunBeg\r   crewCount\r")
    {
        KeywordTree catalogue;
        addTreeLines(lines, catalogue);
        wizard.loadProperties(catalogue);
        wizard.NadeklarujPole();
        wizard.loadBaseClasses();
        wizard.show();
        control<QRadioButton>("Option2").setChecked(true);
    }

    QTreeWidget& tree() { return control<QTreeWidget>("vlastnosti"); }

    QTreeWidgetItem& node(const char* caption)
    {
        return *tree().findItems(QString::fromUtf8(caption), Qt::MatchExactly | Qt::MatchRecursive).at(0);
    }

    bool isTicked(const char* caption) { return node(caption).checkState(0) == Qt::Checked; }

    void tickNode(const char* caption, const char* value = "")
    {
        node(caption).setCheckState(0, Qt::Checked);
        type("txthodnota", value);
    }

    std::string parentShown() { return fromQt(control<QLabel>("lblrodic").text()); }

    std::vector<VehicleProperty> properties;
    frmvehikl wizard{fake.context, properties};
};

TEST_F(VehicleWizardWindow, ExampleIsRegisteredAndWritten)
{
    load();
    addTreeLines("* V *\r   BaseTank\r", fake.host.classTree);
    tickNode("armorValue", "300");
    tickNode("gunBeg", "0.5");
    tickNode("crewCount", "2");
    EXPECT_TRUE(isTicked("Turret"));
    EXPECT_TRUE(isTicked("Vehicle"));
    type("txtjmeno", "MyTank");
    control<QListWidget>("List1").setCurrentRow(1);
    click("Command2");
    std::string registered = openDocument;
    registered.insert(registered.find("units[]={") + 9, "MyTank");
    const std::string vehicle = "   class MyTank: BaseTank\r\n   {\r\n      armorValue = 300;\r\n"
                                "      class Turret\r\n      {\r\n         gunBeg = 0.5;\r\n      };\r\n"
                                "      crewCount = 2;\r\n   };\r\n};";
    EXPECT_EQ(document(), registered + "\r\n\r\nclass CfgVehicles\r\n{\r\n" + vehicle);
    EXPECT_EQ(fake.host.colourings, 1);
    EXPECT_FALSE(wizard.isVisible());
    fake.host.editor.undo();
    EXPECT_EQ(document(), openDocument);

    // Clear All forgets the values and nothing else.
    control<QCheckBox>("Check1").setChecked(true);
    click("Command4");
    EXPECT_EQ(typed("txthodnota"), "2");
    click("Command2");
    EXPECT_EQ(
        document().substr(registered.size()),
        "\r\n\r\nclass CfgVehicles\r\n{\r\n\r\n\r\n   class MyTank: BaseTank\r\n   {\r\n      armorValue = ;\r\n"
        "      class Turret\r\n      {\r\n         gunBeg = ;\r\n      };\r\n      crewCount = ;\r\n   };\r\n};");
}

TEST_F(VehicleWizardWindow, ClickedNodeIsTheOneThatTheValueBoxEdits)
{
    load();
    type("txthodnota", "nobody's");
    tree().setCurrentItem(&node("gunBeg"));
    EXPECT_EQ(typed("txthodnota"), "");
    EXPECT_EQ(parentShown(), "Turret");
    EXPECT_TRUE(isTicked("Turret"));
    EXPECT_FALSE(isTicked("gunBeg"));
    EXPECT_FALSE(isTicked("Vehicle")); // Only the direct parent is ticked.
    type("txthodnota", "\"ústí\\1\"");
    tree().setCurrentItem(&node("Turret"));
    EXPECT_FALSE(control<QLineEdit>("txthodnota").isEnabled());
    EXPECT_EQ(parentShown(), "Vehicle");

    // A tick is a click on its node, clearing it as well.
    node("gunBeg").setCheckState(0, Qt::Checked);
    EXPECT_EQ(typed("txthodnota"), "\"ústí\\1\"");
    EXPECT_TRUE(control<QLineEdit>("txthodnota").isEnabled());
    node("Turret").setCheckState(0, Qt::Unchecked);
    EXPECT_FALSE(isTicked("Turret"));
    EXPECT_EQ(parentShown(), "Vehicle");
    // So is a click on the node that is current already.
    Q_EMIT tree().itemClicked(&node("gunBeg"), 0);
    EXPECT_TRUE(isTicked("Turret"));
    // The root has no parent.
    tree().setCurrentItem(&node("Vehicle"));
    EXPECT_EQ(parentShown(), "");
    EXPECT_EQ(node("gunBeg").toolTip(0), "\"memory point\"");
    EXPECT_EQ(node("armorValue").toolTip(0), "points");
}

TEST_F(VehicleWizardWindow, BrowsedModelIsCopiedWhenWantedAndNamedByItsPlace)
{
    fake.files.files[R"(C:/models/tank.p3d)"] = "model";
    load();
    fake.state.CurrentFile.clear();
    fake.state.PatchClassName.clear();
    fake.host.savePaths = {"", "/addon/config.cpp"};
    fake.dialogs.yesNoAnswers = {true, false};
    fake.dialogs.textAnswers = {"MyAddon"};
    const char* model = R"(C:\models\tank.p3d)";
    fake.dialogs.openAnswers = {model, model, R"(C:\models\gone.p3d)", std::nullopt};
    tree().setCurrentItem(&node("crewCount"));

    click("Command1");
    EXPECT_EQ(properties[5].Value, R"("\MyAddon\tank.p3d")");
    EXPECT_EQ(fake.files.files["/addon/tank.p3d"], "model");
    EXPECT_EQ(fake.host.saves, 2);
    click("Command1");
    EXPECT_EQ(fake.files.writes, 1);
    EXPECT_EQ(properties[5].Value, R"("\MyAddon\tank.p3d")");
    click("Command1");
    click("Command1");
    EXPECT_EQ(properties[5].Value, R"("\data3D\gone.p3d")");
    EXPECT_EQ(fake.dialogs.questions, (std::vector<std::string>{"Copy?", "Copy?"}));
    EXPECT_EQ(fake.dialogs.prompts, std::vector<std::string>{"Name?"});
}

TEST_F(VehicleWizardWindow, WithoutCataloguesTheBareClassIsWritten)
{
    fake.files.files.clear();
    fake.host.savePaths = {"/new/config.cpp"};
    wizard.show();
    click("Command4");
    EXPECT_TRUE(properties.empty());
    click("Command2"); // "Insert as New Addon" is selected at first.
    EXPECT_EQ(fake.state.CurrentFile, "/new/config.cpp");
    EXPECT_EQ(document(), openDocument + "\r\n\r\nclass CfgVehicles\r\n{\r\n   class : \r\n   {\r\n   };\r\n};");
}

} // namespace

} // namespace kitwright::testing
