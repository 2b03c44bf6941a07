// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/context.h"
#include "wizards/catalogue.h"
#include "wizards/class_record.h"
#include "wizards/property_panel.h"
#include "wizards/wizard_dialog.h"

#include <memory>
#include <vector>

namespace Ui {
class ClassWizard;
}

namespace kitwright {

/// What tells one class wizard from the other.
struct ClassWizardSettings {
    const char* name;          ///< Of the window.
    const char* caption;       ///< Until a language is applied.
    const char* catalogueFile; ///< Below the program folder.
    const char* baseListFile;
    UiText entryText;         ///< What a new entry of the class list starts with.
    const char* browseFilter; ///< Of the file dialog.
    const char* patchList;    ///< The list of `CfgPatches` that takes the class names; empty: none does.
    const char* blockName;    ///< Of the class around the classes.
};

/// `Form1`, the weapon wizard.
extern const ClassWizardSettings weaponWizard;

/// `Form3`, the ammunition wizard.
extern const ClassWizardSettings ammoWizard;

/// The window that defines classes by a base class and ticked properties of a catalogue, and writes them into the
/// document. Its classes stay until the program ends; each OK writes them again.
class ClassWizard final : public WizardDialog {
    Q_OBJECT

public:
    /// `classes` is the wizard's array; its element i stands for entry i of the class list.
    ClassWizard(const ClassWizardSettings& settings, Context& context, std::vector<ClassRecord>& classes,
                QWidget* parent = nullptr);
    ~ClassWizard() override;

private:
    void loadBaseClasses();
    void connectControls();

    void addClass();
    void removeClass();
    void removeAllClasses();
    void setEditing(bool enabled);

    void showClass(int row);
    void storeName(const QString& name);
    void storeBaseClass();
    void writeAndHide();

    /// The class that is highlighted, or nullptr.
    ClassRecord* currentClass();

    const ClassWizardSettings& m_settings;
    Context& m_context;
    std::vector<ClassRecord>& m_classes;
    BaseClassList m_baseClasses;
    std::unique_ptr<Ui::ClassWizard> m_ui;
    PropertyPanel m_panel;
};

} // namespace kitwright
