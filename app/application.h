// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/keyword_list.h"
#include "app/main_window.h"
#include "services/context.h"
#include "services/keyword_tree.h"
#include "stringtable/table_store.h"
#include "widgets/plain_labels.h"
#include "wizards/class_record.h"

#include <QPointer>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace kitwright {

/// The composition root: owns all that lasts as long as the program, connects it, and makes every window but the main
/// one on first touch and at most once.
class Application final {
public:
    /// The desktop as the program reaches it, for which tests put stand-ins, must outlive the program. `programFolder`
    /// is the folder of the running program, without a separator at its end.
    Application(FileSystem& files, TextFiles& texts, Dialogs& dialogs, ProgramLauncher& launcher,
                const std::string& programFolder);
    ~Application();

    /// Start-up in the order in which its steps build on one another. Does not show the main window.
    void start();

    fmrconfigedit& mainWindow() { return m_main; }
    Context& context() { return m_context; }

    /// The window of that name, made if need be; nullptr when there is none of that name.
    QWidget* window(std::string_view name);

private:
    void connectMainWindow();
    QDialog* make(std::string_view name);
    template <class Window>
    Window& windowAs(std::string_view name);

    void showModal(std::string_view name);
    void showBeside(std::string_view name);
    void runModal(QDialog& dialog);
    void UnloadAllWindows();

    std::string settingsPath() const { return m_context.inProgramFolder("/Kitwright.cfg"); }
    bool existsOrReport(const std::string& path);
    void loadClasses();
    void loadCommands();
    void loadSettings();
    void findLanguage();
    void loadVehicles();
    void applyLanguage(const std::string& path);
    void saveSettings();
    std::string chooseFolder();

    Context m_context; ///< First of all, so that it outlives all that is built from it.
    TableStore m_strings;
    PlainLabels m_plainLabels;
    std::optional<EditorSettings> m_insteadOfUnread; ///< The settings that stand for a file that could not be read.
    WizardState m_wizards;
    KeywordTree m_classTree;
    KeywordTree m_commandTree;
    KeywordList m_keywords;
    fmrconfigedit m_main;
    std::map<std::string, QPointer<QDialog>, std::less<>> m_windows; ///< Children of the main window.
    std::set<QDialog*> m_modal; ///< Windows whose modal loop runs, or is about to end.
};

} // namespace kitwright
