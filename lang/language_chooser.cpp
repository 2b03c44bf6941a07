// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lang/language_chooser.h"

#include "lang/language_folder.h"
#include "platform/qt_text.h"
#include "platform/report.h"
#include "ui_language_chooser.h"

#include <QShowEvent>

namespace kitwright {

namespace {

Q_LOGGING_CATEGORY(lcLanguage, "kitwright.lang")

} // namespace

Form7::Form7(Context& context, std::function<void(const std::string&)> applyLanguage, QWidget* parent)
    : QDialog(parent),
      m_context(context),
      m_applyLanguage(std::move(applyLanguage)),
      m_ui(std::make_unique<Ui::Form7>())
{
    m_ui->setupUi(this);
    connect(m_ui->Command1, &QPushButton::clicked, this, &Form7::confirm);
    // Enter in the list reaches the default button by itself.
    connect(m_ui->List1, &QListWidget::itemDoubleClicked, this, &Form7::confirm);
}

Form7::~Form7() = default;

void Form7::showEvent(QShowEvent* event)
{
    if (!event->spontaneous())
        listLanguages();
    QDialog::showEvent(event);
}

std::string Form7::folder() const
{
    return m_context.inProgramFolder(languageFolder);
}

void Form7::listLanguages()
{
    m_ui->List1->clear();
    const Outcome<std::vector<std::string>> names = m_context.files.listFiles(folder());
    if (!names) {
        report(lcLanguage(), "listing the languages", names.reason());
        return;
    }
    for (const std::string& name : ListFilesByExtension(*names, "lng", "lng")) {
        auto* entry = new QListWidgetItem(toQt(name), m_ui->List1);
        if (folder() + '/' + name == m_context.state.Settings.LanguageFile) {
            QFont font = m_ui->List1->font();
            font.setBold(true);
            entry->setFont(font);
            m_ui->List1->setCurrentItem(entry);
        }
    }
}

void Form7::confirm()
{
    const QList<QListWidgetItem*> chosen = m_ui->List1->selectedItems();
    if (chosen.isEmpty())
        return;
    const std::string path = folder() + '/' + fromQt(chosen.front()->text());
    if (path != m_context.state.Settings.LanguageFile) {
        // A file that has gone since the list was filled must not become the language of every later start.
        if (!m_context.files.fileExists(path)) {
            report(lcLanguage(), "choosing a language", path + ": no such file");
            listLanguages();
            return;
        }
        m_context.state.Settings.LanguageFile = path;
        m_applyLanguage(path);
    }
    hide();
}

} // namespace kitwright
