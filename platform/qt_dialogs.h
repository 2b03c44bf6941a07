// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/dialogs.h"

#include <QString>

class QFileDialog;

namespace kitwright {

/// The desktop's standard dialogs, in front of the window that is active.
class QtDialogs final : public Dialogs {
public:
    std::optional<std::string> openFile(const FileDialog& dialog) override;
    std::optional<std::string> saveFile(const FileDialog& dialog) override;
    std::optional<std::uint32_t> chooseColour() override;
    void showMessage(const std::string& text) override;
    bool askYesNo(const std::string& question) override;
    std::string askText(const std::string& prompt) override;

private:
    std::optional<std::string> run(QFileDialog& window, const FileDialog& dialog);

    QString m_lastFolder; ///< Where the last dialog ended; empty before the first.
};

} // namespace kitwright
