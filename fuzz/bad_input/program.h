// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/application.h"
#include "platform/dialogs.h"
#include "platform/qt_file_system.h"
#include "platform/qt_program_launcher.h"
#include "platform/qt_text.h"
#include "stage.h"

#include <QAbstractItemView>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright::badinput {

/// Gives the answers that are laid out for it, and notes what nobody expected.
class LaidOutDialogs final : public Dialogs {
public:
    std::optional<std::string> fileToOpen; ///< Answers every open dialog.
    std::string textAnswer = "KW_Bad";
    std::vector<std::string> unexpected;

    std::optional<std::string> openFile(const FileDialog& dialog) override;
    std::optional<std::string> saveFile(const FileDialog& dialog) override;
    std::optional<std::uint32_t> chooseColour() override { return std::nullopt; }
    void showMessage(const std::string& text) override { unexpected.push_back("message " + text); }
    bool askYesNo(const std::string& question) override;
    std::string askText(const std::string& prompt) override;
};

/// The whole program on the files of a stage, built as its main function does, and used through its windows.
class Program {
public:
    explicit Program(const Stage& stage);

    LaidOutDialogs dialogs;

    void start();
    Application& application() { return *m_application; }
    std::string text();

    template <class Control = QWidget>
    Control& control(std::string_view name, std::string_view window = "fmrconfigedit")
    {
        return *qobject_cast<Control*>(find(name, window));
    }

    /// Clicks a button, or chooses a menu entry.
    void use(std::string_view name, std::string_view window = "fmrconfigedit");

    /// Chooses what opens a modal window, and has `inside` act in it before it is hidden.
    void useModal(std::string_view name, const std::function<void(QWidget&)>& inside);

    void type(std::string_view name, std::string_view window, const std::string& text);

    /// Walks through a list or tree as an author does: from the start, by pages, to the end and back up, clicking each
    /// entry that is reached.
    void clickThrough(QAbstractItemView& view);

    /// False when the program refused it.
    bool openDocument(const std::string& path);

    /// Ends the program by closing its main window, which writes the settings.
    void close();

private:
    QObject* find(std::string_view name, std::string_view window);

    QtFileSystem m_files;
    TextFiles m_texts;
    QtProgramLauncher m_launcher;
    std::string m_folder;
    std::unique_ptr<Application> m_application;
};

} // namespace kitwright::badinput
