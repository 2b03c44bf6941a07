// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/application.h"
#include "platform/qt_text.h"
#include "support/fake_dialogs.h"
#include "support/memory_file_system.h"

#include <functional>
#include <memory>
#include <stdexcept>

namespace kitwright::testing {

/// What the program reported on standard error, oldest first. The tests' main function fills it.
inline std::vector<std::string> reports;

/// The whole program with the shipped data files, on files in memory and with dialogs that are answered by queues.
/// Nothing runs until `start`; the files may be arranged before.
class RunningApplication {
public:
    RunningApplication();

    MemoryFileSystem files;
    FakeDialogs dialogs;

    std::string& file(const std::string& path) { return files.files[path]; }

    /// Ends the program if it runs, starts it anew on the same files and shows its main window. `atChooser` gets the
    /// language chooser of a first start, which is closed after it; true when it came.
    bool start(const std::function<void(QWidget&)>& atChooser = [](QWidget&) {});

    /// Starts with default settings and the language of a file.
    void startWith(const std::string& languageFile = {});

    bool isRunning() const { return m_application != nullptr; }
    Application& program() { return *m_application; }
    SharedState& state() { return m_application->context().state; }
    RichTextBox& box() { return m_application->mainWindow().configedit(); }

    /// A window, or a control of a window, by its name; throws when there is none. Other windows, which bear the same
    /// names inside, are not looked into.
    QWidget& window(std::string_view name);

    template <class Control = QWidget>
    Control& control(std::string_view name, std::string_view windowName = "fmrconfigedit")
    {
        QWidget& in = window(windowName);
        for (Control* found : in.findChildren<Control*>(toQt(name))) {
            if (isPartOf(in, found))
                return *found;
        }
        throw std::out_of_range(std::string(windowName) + '.' + std::string(name));
    }

    /// Clicks a control with the mouse, a button at its left end, where a tick box has its box. Chooses a menu entry,
    /// and presses a button that is not seen.
    static void click(QObject& object);

    /// Clicks a control of the main window.
    void use(std::string_view name) { click(control<QObject>(name)); }

    /// Does what opens a modal window; `inside` gets that window, which is hidden after it if it is still there.
    /// False when no window came.
    static bool withModal(const std::function<void()>& open, const std::function<void(QWidget&)>& inside);

    /// Runs the event loop of the program with `act` as its first event; true when the program ended by itself.
    static bool endsBy(const std::function<void()>& act);

private:
    static bool isPartOf(const QWidget& window, const QObject* control);

    TextFiles m_texts;
    std::unique_ptr<Application> m_application;
};

} // namespace kitwright::testing
