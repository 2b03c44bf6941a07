// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/index_window.h"

#include "platform/qt_text.h"
#include "platform/shown_text.h"
#include "ui_index_window.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace kitwright {

namespace {

UiText kindText(KeywordClass keywordClass)
{
    switch (keywordClass) {
    case KeywordClass::ConfigCommand:
        return UiText::KindConfigCommand;
    case KeywordClass::CLanguageWord:
        return UiText::KindCKeyword;
    case KeywordClass::ClassName:
        break;
    }
    return UiText::KindClassName;
}

} // namespace

frmrejstrik2::frmrejstrik2(Context& context, const KeywordList& keywords, QWidget* parent)
    : QDialog(parent),
      m_context(context),
      m_keywords(keywords),
      m_ui(std::make_unique<Ui::frmrejstrik2>())
{
    m_ui->setupUi(this);
    m_ui->txtprikaz->installEventFilter(this);
    connect(m_ui->txtprikaz, &QLineEdit::textChanged, this, &frmrejstrik2::search);
    connect(m_ui->List1, &QListWidget::currentRowChanged, this, &frmrejstrik2::showClass);
    connect(m_ui->List1, &QListWidget::itemClicked, this, [this] { showClass(m_ui->List1->currentRow()); });
    connect(m_ui->cmdok, &QPushButton::clicked, this, &QDialog::hide);
}

frmrejstrik2::~frmrejstrik2() = default;

void frmrejstrik2::showKeywords()
{
    QStringList texts;
    texts.reserve(m_keywords.count());
    for (int i = 0; i < m_keywords.count(); ++i)
        texts << shownText(m_keywords.textAt(i));
    m_ui->List1->clear();
    m_ui->List1->addItems(texts);
    m_ui->List1->setCurrentRow(0);
}

/// The arrow keys walk the list while the caret stays in the search box.
bool frmrejstrik2::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->txtprikaz && event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown)
            return QCoreApplication::sendEvent(m_ui->List1, event);
    }
    return QDialog::eventFilter(watched, event);
}

void frmrejstrik2::search(const QString& text)
{
    if (text.isEmpty())
        return;
    const int found = FindPrefix(0, m_keywords.count() - 1, fromQt(text), m_keywords);
    if (found < 0)
        return;
    m_ui->List1->setCurrentRow(found);
    showClass(found);
}

void frmrejstrik2::showClass(int row)
{
    if (row < 0 || row >= m_keywords.count())
        return;
    m_ui->lbltyp->setText(shownText(m_context.text(kindText(m_keywords.classAt(row)))));
}

} // namespace kitwright
