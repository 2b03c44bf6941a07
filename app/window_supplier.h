// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringView>

#include <string>

class QDialog;

namespace kitwright {

class Form2;

/// Where the main window gets the other windows from. Each exists at most once and is made on first touch.
class WindowSupplier {
public:
    virtual ~WindowSupplier() = default;

    /// Shows a window by its name: dialogs modally, the tools that an author works beside not.
    virtual void showModal(QStringView name) = 0;
    virtual void showBeside(QStringView name) = 0;

    /// The wait notice.
    virtual Form2& waitWindow() = 0;

    /// The two calls of the document commands for the stringtable editor.
    virtual void readStringtable(const std::string& configPath) = 0;
    virtual void WriteStringtable(const std::string& path) = 0;

    /// Writes the settings file.
    virtual void saveSettings() = 0;

    /// Closes and destroys every window, which ends the program.
    virtual void UnloadAllWindows() = 0;
};

} // namespace kitwright
