// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/desktop.h"
#include "app/keyword_list.h"
#include "app/main_window.h"
#include "app/window_supplier.h"
#include "services/keyword_tree.h"
#include "services/shared_state.h"
#include "widgets/plain_labels.h"
#include "wizards/class_record.h"

#include <QPointer>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace kitwright {

class Form4;
class frmvehikl;
class frmrejstrik2;

/// The composition root: owns the shared state and every window, each of which is made on first touch and at most
/// once.
class Application final : public WindowSupplier {
public:
    /// `programFolder` is the folder of the running program, without a separator at its end.
    Application(const Desktop& desktop, const std::string& programFolder);
    ~Application() override;

    /// Start-up in the order in which its steps build on one another. Does not show the main window.
    void start();

    fmrconfigedit& mainWindow() { return m_main; }
    SharedState& state() { return m_state; }
    const KeywordList& keywords() const { return m_keywords; }

    /// The window of that name, made if need be; nullptr when there is none of that name.
    QWidget* window(std::string_view name);

    void showModal(QStringView name) override;
    void showBeside(QStringView name) override;
    Form2& waitWindow() override;
    void readStringtable(const std::string& configPath) override;
    void WriteStringtable(const std::string& path) override;
    void saveSettings() override;
    void UnloadAllWindows() override;

private:
    QDialog* make(std::string_view name);
    template <class Window>
    Window& windowAs(std::string_view name);

    std::string settingsPath() const { return m_state.programFolder + "/Kitwright.cfg"; }
    bool existsOrReport(const std::string& path);
    void loadClasses();
    void loadCommands();
    void loadSettings();
    void findLanguage();
    void loadVehicles();
    void applyLanguage(const std::string& path);
    void runModal(QDialog& dialog);
    std::string chooseFolder();

    PlainLabels m_plainLabels;
    Desktop m_desktop;
    SharedState m_state;
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
