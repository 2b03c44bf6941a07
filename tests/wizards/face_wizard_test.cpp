// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/face_wizard.h"

#include "wizard_driver.h"

#include <QBuffer>
#include <QImage>
#include <QLabel>

namespace kitwright::testing {

namespace {

std::string jpg(int width, int height)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.save(&buffer, "jpg");
    return bytes.toStdString();
}

class FaceWizardWindow : public WizardTest {
protected:
    FaceWizardWindow()
    {
        putData("Kitwrightface.dat", "P,0; plain text\r\nT,2\r\nW,1\r\n");
        fake.files.files["C:/pics/head1.jpg"] = jpg(40, 20);
        fake.files.files["/p/wide.JPG.bak"] = jpg(4000, 1000);
        fake.files.files["/p/none.jpg"] = "no picture";
    }

    void open()
    {
        m_wizard = std::make_unique<frmfaceaddon>(fake.context, faces);
        window = m_wizard.get();
        window->show();
    }

    double pictureRatio()
    {
        const QPixmap picture = control<QLabel>("Image1").pixmap(Qt::ReturnByValue);
        return picture.isNull() ? 0 : static_cast<double>(picture.width()) / picture.height();
    }

    std::vector<FaceRecord> faces;

private:
    std::unique_ptr<frmfaceaddon> m_wizard;
};

const std::initializer_list<const char*> editingControls = {"seznam2", "txtnazev",  "Text1",
                                                            "cmddel",  "cmddelall", "cmdopenimage"};

const char* exampleFace =
    "   class MyHead\r\n   {\r\n      P = \"Red head\";\r\n      T = \"head1.jpg\";\r\n   };\r\n";

TEST_F(FaceWizardWindow, ExampleIsWrittenOnceAndItsPictureCopied)
{
    open();
    EXPECT_EQ(enabled(editingControls), "cmdopenimage ");
    control<QRadioButton>("Option2").setChecked(true);
    click("Command1");
    EXPECT_EQ(enabled(editingControls), "seznam2 txtnazev Text1 cmddel cmddelall ");
    type("txtnazev", "MyHead");
    tick("seznam2", 0);
    type("Text1", "Red head");
    tick("seznam2", 1);
    fake.dialogs.openAnswers = {std::nullopt, R"(C:\pics\head1.jpg)"};
    click("cmdopenimage");
    EXPECT_EQ(typed("Text1"), "");
    click("cmdopenimage");
    EXPECT_NEAR(pictureRatio(), 2.0, 0.05);
    click("cmdok");
    EXPECT_EQ(document(), openDocument + "\r\nclass CfgFaces\r\n{\r\n" + exampleFace + "};\r\n");
    EXPECT_EQ(fake.files.files["D:/addons/MyAddon/head1.jpg"], jpg(40, 20));
    EXPECT_EQ(fake.host.saves, 0);
    EXPECT_EQ(fake.host.colourings, 1);
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(faces.empty());
    EXPECT_EQ(enabled(editingControls), "");
    EXPECT_EQ(fake.dialogs.openAsked[0].filter, "Soubory typu JPG|*.jpg*");

    window->show();
    click("cmdok");
    EXPECT_TRUE(document().ends_with("\r\nclass CfgFaces\r\n{\r\n};\r\n"));
    fake.host.editor.undo();
    fake.host.editor.undo();
    EXPECT_EQ(document(), openDocument);
}

TEST_F(FaceWizardWindow, NewAddonAsksForItsNameAndGetsAPathOfItsOwn)
{
    fake.state.PatchClassName = "Former";
    fake.dialogs.textAnswers = {"MyAddon"};
    fake.host.savePaths = {"", "/new/config.cpp"};
    open();
    click("Command1");
    list("seznam2").setCurrentRow(1);
    type("Text1", R"(C:\pics\head1.jpg)"); // Not ticked: copied, but not written.
    click("cmdok");
    EXPECT_EQ(document(), openDocument + "\r\nclass CfgFaces\r\n{\r\n   class Face 1\r\n   {\r\n   };\r\n};\r\n");
    EXPECT_EQ(fake.state.CurrentFile, "/new/config.cpp");
    EXPECT_EQ(fake.host.saves, 2);
    EXPECT_EQ(fake.host.colourings, 1);
    EXPECT_TRUE(fake.files.files.contains("/new/head1.jpg"));
    EXPECT_EQ(fake.files.writes, 1);
}

TEST_F(FaceWizardWindow, ListAndRecordsStayInStepThroughRemovals)
{
    open();
    for (int i = 0; i < 3; ++i)
        click("Command1");
    EXPECT_EQ(entries("seznam1"), "Obličej 1+|Obličej 2+|Obličej 3+|");
    tick("seznam1", 1, false);
    click("cmddel");
    EXPECT_EQ(entries("seznam1"), "Face 1+|Face 3+|");
    click("cmddel"); // Nothing is highlighted now.
    type("txtnazev", "nobody's");
    EXPECT_EQ(faces[1].Name, "Face 3");
    click("Command1");
    EXPECT_EQ(entries("seznam1"), "Face 1+|Face 3+|Obličej 3+|");
    EXPECT_EQ(typed("txtnazev"), "Face 3");
    type("txtnazev", "Žofie");
    EXPECT_EQ(entries("seznam1"), "Face 1+|Face 3+|Obličej 3+|");

    // An emptied name is stored; a face without a name leaves the box as it is.
    control<QLineEdit>("txtnazev").clear();
    EXPECT_EQ(faces[2].Name, "");
    list("seznam1").setCurrentRow(0);
    list("seznam1").setCurrentRow(2);
    EXPECT_EQ(typed("txtnazev"), "Face 1");

    for (int row = 2; row >= 0; --row) {
        list("seznam1").setCurrentRow(row);
        click("cmddel");
    }
    EXPECT_TRUE(faces.empty());
    EXPECT_EQ(enabled(editingControls), "");
}

TEST_F(FaceWizardWindow, FacesKeepTheirOwnTicksAndValuesWhileTheWindowIsHidden)
{
    open();
    click("Command1");
    tick("seznam2", 2);
    type("Text1", "first");
    click("Command1");
    EXPECT_EQ(list("seznam2").currentRow(), 0);
    EXPECT_EQ(entries("seznam2"), "P|T|W|");
    tick("seznam2", 0);
    click("cmdstorno");
    EXPECT_FALSE(window->isVisible());
    window->show();
    list("seznam1").setCurrentRow(0);
    EXPECT_EQ(entries("seznam2"), "P|T|W+|");
    EXPECT_EQ(list("seznam2").currentRow(), 0);
    list("seznam2").setCurrentRow(2);
    EXPECT_EQ(typed("Text1"), "first");
    EXPECT_TRUE(faces[1].Properties[0].Used);
    EXPECT_EQ(document(), openDocument);
}

TEST_F(FaceWizardWindow, PreviewFollowsTheValueAndKeepsProportions)
{
    open();
    click("Command1");
    const auto show = [this](const char* value) {
        list("seznam2").setCurrentRow(1);
        type("Text1", value);
        list("seznam2").setCurrentRow(0);
        EXPECT_EQ(pictureRatio(), 0) << "a value that names no picture clears the preview";
        list("seznam2").setCurrentRow(1);
        return pictureRatio();
    };
    EXPECT_NEAR(show("/p/wide.JPG.bak"), 4.0, 0.1);
    window->resize(900, 1200);
    QCoreApplication::processEvents();
    EXPECT_NEAR(pictureRatio(), 4.0, 0.1);
    for (const char* unusable : {"/p/none.jpg", "/p/missing.jpg"}) {
        EXPECT_EQ(show(unusable), 0);
        show("/p/wide.JPG.bak");
        fake.dialogs.openAnswers = {unusable};
        click("cmdopenimage"); // Leaves the preview as it was.
        EXPECT_NEAR(pictureRatio(), 4.0, 0.1);
    }
}

} // namespace

} // namespace kitwright::testing
