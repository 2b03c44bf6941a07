// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace kitwright {

/// What a file dialog is asked with. A window that has a file dialog component keeps one of these, so that what
/// one use sets stands until another use changes it.
struct FileDialog {
    std::string filter;           ///< "name|pattern" pairs joined by "|".
    std::string defaultExtension; ///< Added to a typed name that has none; without dot.
    std::string fileName;         ///< Proposed name.
    std::string title;            ///< Empty: the dialog's own.
    std::string folder;           ///< Where it starts; empty: where the last one ended.
    bool mayBeNew = false;        ///< An open dialog also takes the name of a file that does not exist.
};

/// The standard dialogs and boxes. Tests answer through this interface, too.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// Full path of the chosen file; nothing when cancelled.
    virtual std::optional<std::string> openFile(const FileDialog& dialog) = 0;
    virtual std::optional<std::string> saveFile(const FileDialog& dialog) = 0;

    /// The chosen colour, 0x00BBGGRR; nothing when cancelled.
    virtual std::optional<std::uint32_t> chooseColour() = 0;

    /// A message with an OK button.
    virtual void showMessage(const std::string& text) = 0;

    /// A question with Yes and No buttons and a question icon; true for Yes.
    virtual bool askYesNo(const std::string& question) = 0;

    /// An input box; what was typed, empty when cancelled.
    virtual std::string askText(const std::string& prompt) = 0;
};

} // namespace kitwright
