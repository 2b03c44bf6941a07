// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/running_application.h"

#include "text/windows_1250.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QMenu>
#include <QTest>
#include <QTimer>

namespace kitwright::testing {

namespace {

/// The shipped data files, below the program folder.
std::map<std::string, std::string> shippedFiles()
{
    std::map<std::string, std::string> files;
    const QDir data(QStringLiteral(KITWRIGHT_TOP "/data"));
    QDirIterator paths(data.filePath(QStringLiteral("Bfdata")), QDir::Files, QDirIterator::Subdirectories);
    while (paths.hasNext()) {
        QFile file(paths.next());
        if (!file.open(QIODevice::ReadOnly))
            throw std::runtime_error(fromQt(file.fileName()));
        files["/program/" + fromQt(data.relativeFilePath(file.fileName()))] = file.readAll().toStdString();
    }
    return files;
}

} // namespace

RunningApplication::RunningApplication() : m_texts(files, windows1250())
{
    static const std::map<std::string, std::string> shipped = shippedFiles();
    files.files = shipped;
}

bool RunningApplication::start(const std::function<void(QWidget&)>& atChooser)
{
    m_application.reset();
    m_application = std::make_unique<Application>(files, m_texts, dialogs, dialogs, "/program");
    const bool chooserCame = withModal([this] { m_application->start(); }, atChooser);
    QWidget& main = m_application->mainWindow();
    m_application->mainWindow().showFitted();
    main.activateWindow();
    if (!QTest::qWaitForWindowActive(&main))
        throw std::runtime_error("the main window does not become active");
    return chooserCame;
}

void RunningApplication::startWith(const std::string& languageFile)
{
    EditorSettings settings;
    settings.PboFolder = "/packed";
    settings.LanguageFile = languageFile;
    file("/program/Kitwright.cfg") = encodeSettings(settings, windows1250());
    start();
}

QWidget& RunningApplication::window(std::string_view name)
{
    if (QWidget* found = m_application->window(name))
        return *found;
    throw std::out_of_range(std::string(name));
}

void RunningApplication::click(QObject& object)
{
    if (auto* entry = qobject_cast<QAction*>(&object))
        return entry->trigger();
    auto& control = dynamic_cast<QWidget&>(object);
    auto* button = qobject_cast<QAbstractButton*>(&control);
    if (button && !button->isVisible())
        return button->click();
    const QPoint leftEnd(control.height() / 2, control.height() / 2);
    QTest::mouseClick(&control, Qt::LeftButton, {}, button ? leftEnd : control.rect().center());
}

bool RunningApplication::withModal(const std::function<void()>& open, const std::function<void(QWidget&)>& inside)
{
    bool came = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || came)
            return;
        came = true;
        inside(*modal);
        modal->hide();
    });
    watch.start(0);
    open();
    return came;
}

bool RunningApplication::endsBy(const std::function<void()>& act)
{
    constexpr int patience = 3000; // ms
    constexpr int gaveUp = 99;
    QTimer::singleShot(0, qApp, act);
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [] { QCoreApplication::exit(gaveUp); });
    watch.start(patience);
    return QApplication::exec() != gaveUp;
}

/// A menu is a window to Qt, yet a part of the window that it hangs in.
bool RunningApplication::isPartOf(const QWidget& window, const QObject* control)
{
    for (const QObject* at = control; at != &window; at = at->parent()) {
        const auto* widget = qobject_cast<const QWidget*>(at);
        if (widget && widget->isWindow() && !qobject_cast<const QMenu*>(at))
            return false;
    }
    return true;
}

} // namespace kitwright::testing
