// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stage.h"

#include "editor/scintilla_control.h"
#include "text/windows_1250.h"

#include <QApplication>
#include <QDialog>

namespace kitwright::walking {

Stage::Stage(std::uint64_t seed, bool tracing, Coverage& coverage, std::function<void()> whileOpen)
    : record(seed, tracing),
      chance(seed),
      files(record, *this),
      dialogs(chance, record, files, std::move(whileOpen)),
      m_texts(files, windows1250()),
      m_launcher(record, *this),
      m_coverage(coverage)
{
}

void Stage::start()
{
    m_application = std::make_unique<Application>(files, m_texts, dialogs, m_launcher, "/program");
    m_coverage.learnEntries(main());
    // The editor follows its widest line by the clock, which would make two walks differ.
    constexpr int wide = 5000;
    editor().setScrollWidthTracking(false);
    editor().setScrollWidth(wide);
    m_application->start();
    if (m_expectsSettings && state().Settings != m_settings)
        record.fail("the settings are not those of the time before");
    main().showFitted();
    record.count("starts");
}

void Stage::end()
{
    if (main().isVisible())
        record.fail("the program ended by itself");
    m_settings = state().Settings;
    m_settings.PboFolder = windows1250().keepable(m_settings.PboFolder);
    m_expectsSettings = files.hasSettings();
    m_coverage.learnControls(main());
    m_application.reset();
    files.removeLargeTables();
    constexpr std::size_t freshStarts = 20; // Percent.
    if (chance.percent(freshStarts)) {
        files.forgetSettings();
        m_expectsSettings = false;
    }
}

ScintillaControl& Stage::editor()
{
    return *main().findChild<ScintillaControl*>(QStringLiteral("configedit"));
}

bool Stage::isComposing()
{
    return editor().isComposing();
}

QList<QWidget*> Stage::reachableWindows()
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return {popup};
    if (QWidget* modal = QApplication::activeModalWidget())
        return {modal};
    QList<QWidget*> windows;
    if (main().isVisible())
        windows << &main();
    for (QDialog* dialog : main().findChildren<QDialog*>()) {
        if (dialog->isVisible() && !dialog->testAttribute(Qt::WA_DontShowOnScreen))
            windows << dialog;
    }
    return windows;
}

QWidget* Stage::someWindow()
{
    const QList<QWidget*> windows = reachableWindows();
    if (windows.isEmpty())
        return nullptr;
    QWidget* active = QApplication::activeWindow();
    constexpr std::size_t stays = 70; // Percent.
    return windows.contains(active) && chance.percent(stays) ? active : chance.of(windows);
}

QWidget* Stage::control(std::string_view window, std::string_view name)
{
    for (QWidget* reachable : reachableWindows()) {
        if (fromQt(reachable->objectName()) != window)
            continue;
        for (QWidget* found : namedControls(*reachable)) {
            if (fromQt(found->objectName()) == name)
                return found;
        }
    }
    return nullptr;
}

QList<QWidget*> Stage::namedControls(const QWidget& window)
{
    QList<QWidget*> controls;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        const QString name = control->objectName();
        if (control->window() == &window && control->isVisible() && !name.isEmpty()
            && !name.startsWith(QLatin1String("qt_")) && !control->visibleRegion().isEmpty())
            controls << control;
    }
    return controls;
}

} // namespace kitwright::walking
