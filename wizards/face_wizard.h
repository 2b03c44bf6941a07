// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/context.h"
#include "wizards/class_record.h"
#include "wizards/picture_loader.h"
#include "wizards/property_panel.h"
#include "wizards/wizard_dialog.h"

#include <memory>
#include <vector>

namespace Ui {
class frmfaceaddon;
}

namespace kitwright {

/// The face wizard: defines faces by ticked properties of a catalogue, some of which name pictures, and writes them
/// into the document. Its faces stay until OK has written them.
class frmfaceaddon final : public WizardDialog {
    Q_OBJECT

public:
    /// `faces` is the wizard's array; its element i stands for entry i of the face list.
    frmfaceaddon(Context& context, std::vector<FaceRecord>& faces, QWidget* parent = nullptr);
    ~frmfaceaddon() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void connectControls();

    void addFace();
    void removeFace();
    void removeAllFaces();
    void setEditing(bool enabled);

    void showFace(int row);
    void showPicture();
    void storeName(const QString& name);
    void writeAndHide();

    /// The face that is highlighted, or nullptr.
    FaceRecord* currentFace();

    Context& m_context;
    std::vector<FaceRecord>& m_faces;
    std::unique_ptr<Ui::frmfaceaddon> m_ui;
    PropertyPanel m_panel;
    PictureLoader m_picture;
};

} // namespace kitwright
