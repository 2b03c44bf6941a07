// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/dialogs.h"
#include "services/context.h"
#include "text/list_file.h"
#include "wizards/class_record.h"
#include "wizards/wizard_dialog.h"

#include <memory>
#include <string>
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
    void loadCatalogue();
    void connectControls();

    void addFace();
    void removeFace();
    void removeAllFaces();
    void setEditing(bool enabled);

    void showFace();
    void showProperty(int row);
    void storeName(const QString& name);
    void storeValue(const QString& value);
    void browse();
    void showPicture(const std::string& path);
    void writeAndHide();

    /// The face that is highlighted, or nullptr.
    FaceRecord* currentFace();

    /// The highlighted face's setting of the highlighted property, or nullptr.
    PropertySetting* currentSetting();

    Context& m_context;
    std::vector<FaceRecord>& m_faces;
    std::vector<ListEntry> m_catalogue;
    FileDialog CommonDialog1; ///< The window's file dialog.
    std::unique_ptr<Ui::frmfaceaddon> m_ui;
};

} // namespace kitwright
