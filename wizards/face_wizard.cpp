// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/face_wizard.h"

#include "platform/qt_text.h"
#include "platform/shown_text.h"
#include "ui_face_wizard.h"
#include "wizards/catalogue.h"
#include "wizards/face_block.h"
#include "wizards/window_helpers.h"
#include "wizards/wizard_commands.h"

namespace kitwright {

namespace {

constexpr std::size_t nameText = 24;
constexpr std::size_t faceEntryText = 58;

} // namespace

frmfaceaddon::frmfaceaddon(Context& context, std::vector<FaceRecord>& faces, QWidget* parent)
    : WizardDialog(parent),
      m_context(context),
      m_faces(faces),
      m_ui(std::make_unique<Ui::frmfaceaddon>())
{
    m_ui->setupUi(this);
    keepRoomForHelp(*m_ui->propertyHelp);
    setEditing(false);
    loadCatalogue();
    connectControls();
}

frmfaceaddon::~frmfaceaddon() = default;

void frmfaceaddon::showEvent(QShowEvent* event)
{
    WizardDialog::showEvent(event);
    // The name box has no label of its own; the word for it is the language's.
    const QString name = shownText(m_context.text(nameText));
    m_ui->txtnazev->setPlaceholderText(name);
    m_ui->txtnazev->setAccessibleName(name);
}

void frmfaceaddon::loadCatalogue()
{
    m_catalogue = loadIfThere(m_context, "/Bfdata/kitwright/Kitwrightface.dat");
    for (const ListEntry& property : m_catalogue)
        m_ui->seznam2->addEntry(shownText(property.text), shownText(property.help));
}

void frmfaceaddon::connectControls()
{
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmfaceaddon::addFace);
    connect(m_ui->cmddel, &QPushButton::clicked, this, &frmfaceaddon::removeFace);
    connect(m_ui->cmddelall, &QPushButton::clicked, this, &frmfaceaddon::removeAllFaces);
    connect(m_ui->seznam1, &CheckList::entryClicked, this, &frmfaceaddon::showFace);
    connect(m_ui->seznam2, &CheckList::entryClicked, this, &frmfaceaddon::showProperty);
    connect(m_ui->txtnazev, &QLineEdit::textChanged, this, &frmfaceaddon::storeName);
    connect(m_ui->Text1, &QLineEdit::textChanged, this, &frmfaceaddon::storeValue);
    connect(m_ui->cmdopenimage, &QPushButton::clicked, this, &frmfaceaddon::browse);
    connect(m_ui->cmdok, &QPushButton::clicked, this, &frmfaceaddon::writeAndHide);
    connect(m_ui->cmdstorno, &QPushButton::clicked, this, &QWidget::hide);
}

void frmfaceaddon::addFace()
{
    const std::string number = std::to_string(m_faces.size() + 1);
    FaceRecord face;
    face.Properties.resize(m_catalogue.size());
    face.Name = "Face " + number;
    m_faces.push_back(std::move(face));
    const int row = m_ui->seznam1->addEntry(shownText(m_context.text(faceEntryText) + ' ' + number));
    setEditing(true);
    m_ui->seznam1->setTicked(row, true);
    m_ui->seznam1->choose(row);
}

void frmfaceaddon::removeFace()
{
    const int row = m_ui->seznam1->currentRow();
    if (!currentFace())
        return;
    m_ui->seznam1->removeEntry(row);
    m_faces.erase(m_faces.begin() + row);
    for (int i = 0; i < static_cast<int>(m_faces.size()); ++i)
        m_ui->seznam1->setEntryText(i, toQt(m_faces[static_cast<std::size_t>(i)].Name));
    if (m_faces.empty())
        removeAllFaces();
}

void frmfaceaddon::removeAllFaces()
{
    m_faces.clear();
    m_ui->seznam1->removeAll();
    setEditing(false);
    m_ui->cmdopenimage->setEnabled(false);
}

void frmfaceaddon::setEditing(bool enabled)
{
    for (QWidget* control :
         std::initializer_list<QWidget*>{m_ui->cmddel, m_ui->cmddelall, m_ui->seznam2, m_ui->txtnazev, m_ui->Text1})
        control->setEnabled(enabled);
}

void frmfaceaddon::showFace()
{
    const FaceRecord* face = currentFace();
    if (!face)
        return;
    if (!face->Name.empty())
        m_ui->txtnazev->setText(toQt(face->Name));
    m_ui->seznam2->setTicks(usedProperties(face->Properties));
    m_ui->seznam2->choose(0);
}

void frmfaceaddon::showProperty(int row)
{
    const ListEntry& property = m_catalogue[static_cast<std::size_t>(row)];
    m_ui->propertyHelp->setText(shownText(property.help));
    if (PropertySetting* setting = currentSetting()) {
        setting->Used = m_ui->seznam2->isTicked(row);
        m_ui->Text1->setText(toQt(setting->Value));
    }
    m_ui->cmdopenimage->setEnabled(property.kind == fileKind);
    const std::string value = fromQt(m_ui->Text1->text());
    if (namesPicture(value))
        showPicture(value);
    else
        m_ui->Image1->clearPicture();
}

void frmfaceaddon::storeName(const QString& name)
{
    if (FaceRecord* face = currentFace())
        face->Name = fromQt(name);
}

void frmfaceaddon::storeValue(const QString& value)
{
    if (PropertySetting* setting = currentSetting())
        setting->Value = fromQt(value);
}

void frmfaceaddon::browse()
{
    CommonDialog1.filter = "Soubory typu JPG|*.jpg*";
    const auto path = m_context.dialogs.openFile(CommonDialog1);
    if (!path)
        return;
    m_ui->Text1->setText(toQt(*path));
    showPicture(*path);
}

void frmfaceaddon::showPicture(const std::string& path)
{
    const Outcome<std::string> bytes = m_context.files.readBytes(path);
    if (!bytes)
        report(lcWizards(), "showing a picture", bytes.reason());
    else if (!m_ui->Image1->showPicture(*bytes))
        report(lcWizards(), "showing a picture", path + ": no JPG picture of a usable size");
}

void frmfaceaddon::writeAndHide()
{
    FaceOrder order;
    order.target = m_ui->Option1->isChecked() ? AddonTarget::NewAddon : AddonTarget::CurrentAddon;
    order.catalogue = m_catalogue;
    order.faces = m_faces;
    order.ticked = m_ui->seznam1->ticks();
    report("copying pictures", writeFaces(m_context, order));
    removeAllFaces();
    hide();
}

FaceRecord* frmfaceaddon::currentFace()
{
    return recordAt(m_faces, m_ui->seznam1->currentRow());
}

PropertySetting* frmfaceaddon::currentSetting()
{
    FaceRecord* face = currentFace();
    return face ? recordAt(face->Properties, m_ui->seznam2->currentRow()) : nullptr;
}

} // namespace kitwright
