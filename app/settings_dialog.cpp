// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/settings_dialog.h"

#include "platform/qt_text.h"
#include "ui_settings_dialog.h"

namespace kitwright {

Form5::Form5(Context& context, ChooseFolder chooseFolder, QWidget* parent)
    : QDialog(parent),
      m_context(context),
      m_chooseFolder(std::move(chooseFolder)),
      m_ui(std::make_unique<Ui::Form5>())
{
    m_ui->setupUi(this);
    bindStyles();
    bindOptions();
    connect(m_ui->Command1, &QPushButton::clicked, this, &QDialog::accept);
}

Form5::~Form5() = default;

void Form5::bindStyles()
{
    EditorSettings& settings = m_context.state.Settings;
    bind(m_ui->CCPB, settings.CKeywordColor);
    bind(m_ui->CCPT, settings.CKeywordBold);
    bind(m_ui->CCPK, settings.CKeywordItalic);
    bind(m_ui->FCPB, settings.ConfigKeywordColor);
    bind(m_ui->FCPT, settings.ConfigKeywordBold);
    bind(m_ui->FCPK, settings.ConfigKeywordItalic);
    bind(m_ui->classB, settings.ClassNameColor);
    bind(m_ui->classT, settings.ClassNameBold);
    bind(m_ui->classK, settings.ClassNameItalic);
    bind(m_ui->KTC, settings.CommentColor);
    bind(m_ui->KTB, settings.CommentBold);
    bind(m_ui->KTK, settings.CommentItalic);
}

void Form5::bindOptions()
{
    EditorSettings& settings = m_context.state.Settings;
    bind(m_ui->Check1, settings.InsertBaseText);
    bind(m_ui->Check2, settings.DeclareFromRoot);
    bind(m_ui->Check3, settings.KeywordColouringOff);
    m_ui->txtcesta->setText(toQt(settings.PboFolder));
    connect(m_ui->txtcesta, &QLineEdit::textChanged, this,
            [&settings](const QString& text) { settings.PboFolder = fromQt(text); });
    connect(m_ui->Command2, &QPushButton::clicked, this, [this] {
        const std::string folder = m_chooseFolder();
        if (!folder.empty())
            m_ui->txtcesta->setText(toQt(folder));
    });
}

void Form5::bind(ColourBox* box, std::uint32_t& colour)
{
    box->setBgr(colour);
    connect(box, &ColourBox::clicked, this, [this, box] {
        if (const auto chosen = m_context.dialogs.chooseColour())
            box->setBgr(*chosen);
    });
    connect(box, &ColourBox::colourChanged, this, [box, &colour] { colour = box->bgr(); });
}

void Form5::bind(QCheckBox* box, bool& flag)
{
    box->setChecked(flag);
    connect(box, &QCheckBox::toggled, this, [&flag](bool ticked) { flag = ticked; });
}

} // namespace kitwright
