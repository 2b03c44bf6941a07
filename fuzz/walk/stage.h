// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/application.h"
#include "chance.h"
#include "coverage.h"
#include "hands.h"
#include "hasty_dialogs.h"
#include "platform/qt_text.h"
#include "record.h"
#include "watched_files.h"

#include <functional>
#include <memory>
#include <string_view>

namespace kitwright {
class ScintillaControl;
}

namespace kitwright::walking {

/// The whole program on a watched desktop, and the hands that use it. The program is started and ended from outside.
class Stage final : public Surroundings {
public:
    /// `whileOpen` runs the program's events while a dialog of the desktop is open.
    Stage(std::uint64_t seed, bool tracing, Coverage& coverage, std::function<void()> whileOpen);

    Record record;
    Chance chance;
    WatchedFiles files;
    HastyDialogs dialogs;
    Hands hands;

    /// Starts the program on the files as they are. Modal windows of the start run before it returns.
    void start();

    /// Forgets the program, whose event loop has ended.
    void end();

    bool isRunning() const { return m_application != nullptr; }
    fmrconfigedit& main() { return m_application->mainWindow(); }
    RichTextBox& box() { return main().configedit(); }
    ScintillaControl& editor();
    const SharedState& state() override { return m_application->context().state; }
    std::string_view document() override { return box().text(); }
    bool isComposing() override;

    /// The visible windows that a mouse reaches: an open menu or list alone, or else the modal window alone, or else
    /// all of them, the main window first. Never depends on addresses.
    QList<QWidget*> reachableWindows();

    /// One of them, that with the keyboard most often. Null while there is none.
    QWidget* someWindow();

    /// A control of a window that is reachable and shows it; null otherwise.
    QWidget* control(std::string_view window, std::string_view name);

    /// The visible controls of a window that bear a name.
    static QList<QWidget*> namedControls(const QWidget& window);

private:
    TextFiles m_texts;
    PackerOnly m_launcher;
    Coverage& m_coverage;
    std::unique_ptr<Application> m_application;
    EditorSettings m_settings; ///< When the program ended.
    bool m_expectsSettings = false;
};

} // namespace kitwright::walking
