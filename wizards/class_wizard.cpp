// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/class_wizard.h"

#include "platform/qt_text.h"
#include "platform/shown_text.h"
#include "ui_class_wizard.h"
#include "wizards/window_helpers.h"
#include "wizards/wizard_commands.h"

namespace kitwright {

const ClassWizardSettings weaponWizard = {
    "Form1",
    "Weapon addon",
    "/Bfdata/kitwright/kitwrightweapon.dat",
    "/Bfdata/kitwright/addweapons.dat",
    UiText::NewWeapon,
    "Soubory typu P3D|*.p3d*",
    "weapons[]",
    "CfgWeapons",
};

const ClassWizardSettings ammoWizard = {
    "Form3",
    "Make ammo",
    "/Bfdata/kitwright/kitwrightammo.dat",
    "/Bfdata/kitwright/addammo.dat",
    UiText::NewAmmo,
    "Všechny soubory|*.*",
    "",
    "CfgAmmo",
};

ClassWizard::ClassWizard(const ClassWizardSettings& settings, Context& context, std::vector<ClassRecord>& classes,
                         QWidget* parent)
    : WizardDialog(parent),
      m_settings(settings),
      m_context(context),
      m_classes(classes),
      m_ui(designed<Ui::ClassWizard>(*this)),
      m_panel({*m_ui->List2, *m_ui->propertyHelp, *m_ui->txthodnota, *m_ui->Command6}, context,
              settings.browseFilter, [this] {
                  ClassRecord* record = currentClass();
                  return record ? &record->Properties : nullptr;
              })
{
    setObjectName(settings.name);
    setWindowTitle(settings.caption);
    setEditing(false);
    m_panel.loadCatalogue(settings.catalogueFile);
    loadBaseClasses();
    connectControls();
}

ClassWizard::~ClassWizard() = default;

void ClassWizard::loadBaseClasses()
{
    m_baseClasses = BaseClassList(loadIfThere(m_context, m_settings.baseListFile));
    for (int i = 0; i < m_baseClasses.count(); ++i)
        m_ui->Combo1->addItem(shownText(m_baseClasses.textAt(i)));
}

void ClassWizard::connectControls()
{
    connect(m_ui->cmdadd, &QPushButton::clicked, this, &ClassWizard::addClass);
    connect(m_ui->cmddel, &QPushButton::clicked, this, &ClassWizard::removeClass);
    connect(m_ui->cmddelall, &QPushButton::clicked, this, &ClassWizard::removeAllClasses);
    connect(m_ui->List1, &CheckList::entryClicked, this, &ClassWizard::showClass);
    connect(m_ui->txtname, &QLineEdit::textChanged, this, &ClassWizard::storeName);
    // Choosing the entry that the box shows already changes no index, but is a choice all the same.
    connect(m_ui->Combo1, &QComboBox::activated, this, &ClassWizard::storeBaseClass);
    connect(m_ui->Combo1, &QComboBox::currentIndexChanged, this, &ClassWizard::storeBaseClass);
    connect(m_ui->Command1, &QPushButton::clicked, this, &ClassWizard::writeAndHide);
    connect(m_ui->Command2, &QPushButton::clicked, this, &QWidget::hide);
}

void ClassWizard::addClass()
{
    ClassRecord record;
    record.Properties.resize(m_panel.catalogue().size());
    m_classes.push_back(std::move(record));
    const std::string label = m_context.text(m_settings.entryText) + ' ' + std::to_string(m_classes.size());
    m_ui->List1->setTicked(m_ui->List1->addEntry(shownText(label)), true);
    setEditing(true);
}

void ClassWizard::removeClass()
{
    const int row = m_ui->List1->currentRow();
    if (!currentClass())
        return;
    m_ui->List1->removeEntry(row);
    m_classes.erase(m_classes.begin() + row);
    if (m_classes.empty())
        removeAllClasses();
}

void ClassWizard::removeAllClasses()
{
    m_classes.clear();
    m_ui->List1->removeAll();
    setEditing(false);
}

void ClassWizard::setEditing(bool enabled)
{
    m_panel.setEnabled(enabled);
    for (QWidget* control : std::initializer_list<QWidget*>{m_ui->cmddel, m_ui->cmddelall, m_ui->txtname,
                                                            m_ui->Command6, m_ui->Combo1})
        control->setEnabled(enabled);
}

void ClassWizard::showClass(int row)
{
    ClassRecord* record = currentClass();
    if (!record)
        return;
    record->ticked = m_ui->List1->isTicked(row);
    m_ui->txtname->setText(toQt(record->Name));
    const int base = m_baseClasses.find(record->BaseClass);
    if (base >= 0) {
        m_ui->Combo1->setCurrentIndex(base);
        storeBaseClass();
    }
    m_panel.showTicks();
}

void ClassWizard::storeName(const QString& name)
{
    if (ClassRecord* record = currentClass())
        record->Name = fromQt(name);
}

void ClassWizard::storeBaseClass()
{
    ClassRecord* record = currentClass();
    const int chosen = m_ui->Combo1->currentIndex();
    if (record && chosen >= 0)
        record->BaseClass = m_baseClasses.textAt(chosen);
}

void ClassWizard::writeAndHide()
{
    ClassOrder order;
    order.target = m_ui->Option1->isChecked() ? AddonTarget::NewAddon : AddonTarget::CurrentAddon;
    order.blockName = m_settings.blockName;
    order.patchList = m_settings.patchList;
    order.declareBases = m_ui->Check1->isChecked();
    order.catalogue = m_panel.catalogue();
    order.classes = m_classes;
    report("writing the classes", writeClasses(m_context, order));
    hide();
}

ClassRecord* ClassWizard::currentClass()
{
    return recordAt(m_classes, m_ui->List1->currentRow());
}

} // namespace kitwright
