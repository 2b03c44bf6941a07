// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/qt_dialogs.h"

#include "platform/qt_text.h"
#include "platform/shown_text.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>

namespace kitwright {

namespace {

QString title()
{
    const QWidget* window = QApplication::activeWindow();
    return window ? window->windowTitle() : QString();
}

/// "Config files|*.cpp*|All files|*.*" as the filters of a file dialog.
QStringList nameFilters(const std::string& filter)
{
    const QStringList parts = toQt(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        // "*.*" means every file, those without a dot as well.
        const QString pattern = parts[i + 1] == QLatin1String("*.*") ? QStringLiteral("*") : parts[i + 1];
        filters << QStringLiteral("%1 (%2)").arg(parts[i], pattern);
    }
    return filters;
}

std::optional<std::uint32_t> toBgr(const QColor& colour)
{
    if (!colour.isValid())
        return std::nullopt;
    return static_cast<std::uint32_t>(colour.blue() << 16 | colour.green() << 8 | colour.red());
}

} // namespace

std::optional<std::string> QtDialogs::openFile(const FileDialog& dialog)
{
    QFileDialog window(QApplication::activeWindow());
    window.setAcceptMode(QFileDialog::AcceptOpen);
    window.setFileMode(dialog.mayBeNew ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    return run(window, dialog);
}

std::optional<std::string> QtDialogs::saveFile(const FileDialog& dialog)
{
    QFileDialog window(QApplication::activeWindow());
    window.setAcceptMode(QFileDialog::AcceptSave);
    window.setFileMode(QFileDialog::AnyFile);
    window.setOption(QFileDialog::DontConfirmOverwrite);
    return run(window, dialog);
}

std::optional<std::string> QtDialogs::run(QFileDialog& window, const FileDialog& dialog)
{
    if (!dialog.title.empty())
        window.setWindowTitle(shownText(dialog.title));
    window.setNameFilters(nameFilters(dialog.filter));
    window.setDefaultSuffix(toQt(dialog.defaultExtension));
    if (!dialog.folder.empty())
        m_lastFolder = toQt(dialog.folder);
    window.setDirectory(m_lastFolder.isEmpty() ? QDir::homePath() : m_lastFolder);
    if (!dialog.fileName.empty())
        window.selectFile(toQt(dialog.fileName));

    if (window.exec() != QDialog::Accepted || window.selectedFiles().isEmpty())
        return std::nullopt;
    const QString chosen = window.selectedFiles().constFirst();
    m_lastFolder = QFileInfo(chosen).absolutePath();
    return fromQt(chosen);
}

std::optional<std::uint32_t> QtDialogs::chooseColour()
{
    QColorDialog window(QApplication::activeWindow());
    if (window.exec() != QDialog::Accepted)
        return std::nullopt;
    return toBgr(window.selectedColor());
}

void QtDialogs::showMessage(const std::string& text)
{
    QMessageBox box(QMessageBox::NoIcon, title(), shownText(text), QMessageBox::Ok, QApplication::activeWindow());
    box.exec();
}

bool QtDialogs::askYesNo(const std::string& question)
{
    QMessageBox box(QMessageBox::Question, title(), shownText(question), QMessageBox::Yes | QMessageBox::No,
                    QApplication::activeWindow());
    return box.exec() == QMessageBox::Yes;
}

std::string QtDialogs::askText(const std::string& prompt)
{
    QInputDialog box(QApplication::activeWindow());
    box.setWindowTitle(title());
    box.setLabelText(shownText(prompt));
    return box.exec() == QDialog::Accepted ? fromQt(box.textValue()) : std::string();
}

} // namespace kitwright
