// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/face_wizard.h"

#include "window_story.h"

#include <QBuffer>
#include <QImage>

namespace kitwright::testing {
using namespace told;
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

class FaceWizardWindow : public WindowStory {
protected:
    FaceWizardWindow()
    {
        fake.state.TextTable[58] = "Obličej";
        verbs["picture-file"] = [this](Word path, Word size) {
            fake.files.files[path] = jpg(std::stoi(size), std::stoi(size.substr(size.find(' '))));
        };
        verbs["open"] = [this](Word, Word) {
            window = std::make_unique<frmfaceaddon>(fake.context, faces);
            window->show();
        };
        verbs["resize"] = [this](Word width, Word height) {
            window->resize(std::stoi(width), std::stoi(height));
            QCoreApplication::processEvents();
        };
        verbs["no-picture"] = [this](Word, Word) { EXPECT_TRUE(picture().isNull()); };
        verbs["picture-ratio"] = [this](Word ratio, Word) {
            EXPECT_NEAR(static_cast<double>(picture().width()) / picture().height(), std::stod(ratio), 0.1);
        };
    }

    QPixmap picture() { return control<QLabel>("Image1").pixmap(Qt::ReturnByValue); }

    std::vector<FaceRecord> faces;
};

PLAY_STORIES(FaceWizardWindow, "wizards/face_wizard.story");

} // namespace
} // namespace kitwright::testing
