// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "program.h"

#include "text/windows_1250.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>

namespace kitwright::badinput {

std::optional<std::string> LaidOutDialogs::openFile(const FileDialog& /*dialog*/)
{
    if (!fileToOpen)
        unexpected.emplace_back("an open dialog");
    return fileToOpen;
}

std::optional<std::string> LaidOutDialogs::saveFile(const FileDialog& /*dialog*/)
{
    unexpected.emplace_back("a save dialog");
    return std::nullopt;
}

bool LaidOutDialogs::askYesNo(const std::string& /*question*/)
{
    return true;
}

std::string LaidOutDialogs::askText(const std::string& /*prompt*/)
{
    return textAnswer;
}

Program::Program(const Stage& stage) : m_texts(m_files, windows1250()), m_folder(stage.path("program")) {}

void Program::start()
{
    m_application = std::make_unique<Application>(m_files, m_texts, dialogs, m_launcher, m_folder);
    m_application->start();
    m_application->mainWindow().showFitted();
    m_application->mainWindow().activateWindow();
    expect(QTest::qWaitForWindowActive(&m_application->mainWindow(), 60'000), "the main window does not show");
    QApplication::processEvents();
}

std::string Program::text()
{
    return std::string(m_application->mainWindow().configedit().text());
}

QObject* Program::find(std::string_view name, std::string_view window)
{
    QWidget* in = m_application->window(window);
    expect(in != nullptr, "no window " + std::string(window));
    for (QObject* found : in->findChildren<QObject*>(toQt(name))) {
        const QObject* at = found;
        // Other windows are children of the main window, and their controls bear the same names.
        const auto isOtherWindow = [](const QObject* object) {
            const auto* widget = qobject_cast<const QWidget*>(object);
            return widget && widget->isWindow() && !qobject_cast<const QMenu*>(object);
        };
        while (at != in && !isOtherWindow(at))
            at = at->parent();
        if (at == in)
            return found;
    }
    throw Fault("no control " + std::string(window) + '.' + std::string(name));
}

void Program::use(std::string_view name, std::string_view window)
{
    QObject* object = find(name, window);
    if (auto* entry = qobject_cast<QAction*>(object)) {
        entry->trigger();
    } else {
        auto* button = qobject_cast<QAbstractButton*>(object);
        expect(button && button->isEnabled(), "cannot click " + std::string(name));
        button->click();
    }
    QApplication::processEvents();
}

void Program::useModal(std::string_view name, const std::function<void(QWidget&)>& inside)
{
    bool came = false;
    std::string fault;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || came)
            return;
        came = true;
        // Nothing may be thrown through the toolkit's event loop.
        try {
            QApplication::processEvents();
            inside(*modal);
            QApplication::processEvents();
        } catch (const Fault& thrown) {
            fault = thrown.what();
        }
        modal->hide();
    });
    watch.start(0);
    use(name);
    expect(came, std::string(name) + " opens no window");
    expect(fault.empty(), fault);
}

void Program::type(std::string_view name, std::string_view window, const std::string& text)
{
    auto& box = control<>(name, window);
    box.window()->activateWindow();
    box.setFocus();
    QTest::keyClicks(&box, toQt(text));
    QApplication::processEvents();
}

void Program::clickThrough(QAbstractItemView& view)
{
    constexpr int pages = 5;
    QModelIndex clicked;
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(&view, key);
        if (view.currentIndex() != clicked) {
            clicked = view.currentIndex();
            view.scrollTo(clicked);
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(clicked).center());
        }
        QApplication::processEvents();
    };
    view.setFocus();
    press(Qt::Key_Home);
    for (int page = 0; page < pages; ++page) {
        press(Qt::Key_Down);
        press(Qt::Key_PageDown);
    }
    press(Qt::Key_End);
    press(Qt::Key_Up);
}

bool Program::openDocument(const std::string& path)
{
    dialogs.fileToOpen = path;
    use("cmdopen");
    dialogs.fileToOpen.reset();
    return application().context().state.CurrentFile == path;
}

void Program::close()
{
    m_application->mainWindow().close();
    QApplication::processEvents();
    m_application.reset();
    std::string all;
    for (const std::string& one : dialogs.unexpected)
        all += one + "; ";
    expect(all.empty(), "unexpected: " + all);
}

} // namespace kitwright::badinput
