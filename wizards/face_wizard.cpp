// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/face_wizard.h"

#include "platform/qt_text.h"
#include "platform/shown_text.h"
#include "ui_face_wizard.h"
#include "wizards/face_block.h"
#include "wizards/window_helpers.h"
#include "wizards/wizard_commands.h"

namespace kitwright {

frmfaceaddon::frmfaceaddon(Context& context, std::vector<FaceRecord>& faces, QWidget* parent)
    : WizardDialog(parent),
      m_context(context),
      m_faces(faces),
      m_ui(designed<Ui::frmfaceaddon>(*this)),
      m_panel({*m_ui->seznam2, *m_ui->propertyHelp, *m_ui->Text1, *m_ui->cmdopenimage}, context,
              "Soubory typu JPG|*.jpg*",
              [this] {
                  FaceRecord* face = currentFace();
                  return face ? &face->Properties : nullptr;
              }),
      m_picture(*m_ui->Image1, context.files)
{
    setEditing(false);
    m_panel.loadCatalogue("/Bfdata/kitwright/Kitwrightface.dat");
    connectControls();
}

frmfaceaddon::~frmfaceaddon() = default;

void frmfaceaddon::showEvent(QShowEvent* event)
{
    WizardDialog::showEvent(event);
    // The name box has no label of its own; the word for it is the language's.
    const QString name = shownText(m_context.text(UiText::Name));
    m_ui->txtnazev->setPlaceholderText(name);
    m_ui->txtnazev->setAccessibleName(name);
}

void frmfaceaddon::connectControls()
{
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmfaceaddon::addFace);
    connect(m_ui->cmddel, &QPushButton::clicked, this, &frmfaceaddon::removeFace);
    connect(m_ui->cmddelall, &QPushButton::clicked, this, &frmfaceaddon::removeAllFaces);
    connect(m_ui->seznam1, &CheckList::entryClicked, this, &frmfaceaddon::showFace);
    connect(m_ui->txtnazev, &QLineEdit::textChanged, this, &frmfaceaddon::storeName);
    connect(&m_panel, &PropertyPanel::propertyShown, this, &frmfaceaddon::showPicture);
    connect(&m_panel, &PropertyPanel::fileChosen, &m_picture, &PictureLoader::load);
    connect(m_ui->cmdok, &QPushButton::clicked, this, &frmfaceaddon::writeAndHide);
    connect(m_ui->cmdstorno, &QPushButton::clicked, this, &QWidget::hide);
}

void frmfaceaddon::addFace()
{
    const std::string number = std::to_string(m_faces.size() + 1);
    FaceRecord face;
    face.Properties.resize(m_panel.catalogue().size());
    face.Name = "Face " + number;
    m_faces.push_back(std::move(face));
    const int row = m_ui->seznam1->addEntry(shownText(m_context.text(UiText::NewFace) + ' ' + number));
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
    m_panel.setEnabled(enabled);
    for (QWidget* control : std::initializer_list<QWidget*>{m_ui->cmddel, m_ui->cmddelall, m_ui->txtnazev})
        control->setEnabled(enabled);
}

void frmfaceaddon::showFace(int row)
{
    FaceRecord* face = currentFace();
    if (!face)
        return;
    face->ticked = m_ui->seznam1->isTicked(row);
    if (!face->Name.empty())
        m_ui->txtnazev->setText(toQt(face->Name));
    m_panel.showTicks();
    m_ui->seznam2->choose(0);
}

void frmfaceaddon::showPicture()
{
    const std::string value = fromQt(m_ui->Text1->text());
    if (namesPicture(value))
        m_picture.show(value);
    else
        m_picture.clear();
}

void frmfaceaddon::storeName(const QString& name)
{
    if (FaceRecord* face = currentFace())
        face->Name = fromQt(name);
}

void frmfaceaddon::writeAndHide()
{
    FaceOrder order;
    order.target = m_ui->Option1->isChecked() ? AddonTarget::NewAddon : AddonTarget::CurrentAddon;
    order.catalogue = m_panel.catalogue();
    order.faces = m_faces;
    report("copying pictures", writeFaces(m_context, order));
    removeAllFaces();
    hide();
}

FaceRecord* frmfaceaddon::currentFace()
{
    return recordAt(m_faces, m_ui->seznam1->currentRow());
}

} // namespace kitwright
