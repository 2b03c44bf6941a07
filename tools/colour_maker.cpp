// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/colour_maker.h"

#include "platform/qt_text.h"
#include "text/list_file.h"
#include "tools/colour_text.h"
#include "ui_colour_maker.h"

namespace kitwright {

Form9::Form9(Context& context, QWidget* parent)
    : QDialog(parent),
      m_context(context),
      m_ui(std::make_unique<Ui::Form9>())
{
    m_ui->setupUi(this);
    connect(m_ui->Picture1, &ColourBox::clicked, this, &Form9::pickColour);
    connect(m_ui->txtralpha, &QLineEdit::textChanged, this, &Form9::keepAlphaInRange);
    connect(m_ui->Command1, &QPushButton::clicked, this, &Form9::makeText);
    connect(m_ui->Command2, &QPushButton::clicked, this, &QDialog::hide);
}

Form9::~Form9() = default;

void Form9::closeEvent(QCloseEvent* event)
{
    m_ui->Picture1->clearColour();
    m_ui->txtralpha->clear();
    m_ui->txtvysledek->clear();
    QDialog::closeEvent(event);
}

void Form9::pickColour()
{
    if (const auto chosen = m_context.dialogs.chooseColour())
        m_ui->Picture1->setBgr(*chosen);
}

void Form9::keepAlphaInRange()
{
    const double alpha = leadingNumber(fromQt(m_ui->txtralpha->text()));
    if (alpha < 0)
        m_ui->txtralpha->setText(QStringLiteral("0"));
    else if (alpha > 100)
        m_ui->txtralpha->setText(QStringLiteral("100"));
}

void Form9::makeText()
{
    const double alpha = leadingNumber(fromQt(m_ui->txtralpha->text()));
    m_ui->txtvysledek->setText(toQt(colourArrayText(m_ui->Picture1->bgr(), alpha)));
}

} // namespace kitwright
