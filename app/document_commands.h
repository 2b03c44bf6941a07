// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/dialogs.h"
#include "services/context.h"
#include "stringtable/table_store.h"

#include <functional>
#include <string>

namespace kitwright {

/// The commands that act on the document as a whole.
class DocumentCommands {
public:
    /// Captions the main window.
    using SetCaption = std::function<void(const std::string& caption)>;

    /// Gives an editor the text of a document that was just opened, coloured.
    using ShowOpened = std::function<void(RichTextBox& editor, std::string text)>;

    /// Context and table must outlive the commands.
    DocumentCommands(Context& context, TableStore& strings, SetCaption setCaption, ShowOpened showOpened);

    void newDocument();
    void open();

    /// Saves the document under its path, asking for one when it has none, and writes its stringtable. True when
    /// the document reached the disk.
    bool UlozAddon();

    void saveAs();

    /// Starts the packer on the document as last saved.
    void makePbo();

    /// Asks for the required version and replaces the document by the starting text of an add-on named `Jmeno`.
    void VlozText(const std::string& Jmeno);

private:
    bool NactiConfig(const std::string& Soubor, RichTextBox& TextovePole) const;
    bool UlozConfig(const std::string& Cesta);
    bool askForFile();
    void askForPatchClassName();
    Failure startPacker();

    Context& m_context;
    TableStore& m_strings;
    SetCaption m_setCaption;
    ShowOpened m_showOpened;
    FileDialog CommonDialog1; ///< Keeps what one use sets, its title above all, until another use changes it.
};

/// Everything that the packer gets after its own path.
std::string packerArgument(const SharedState& state);

} // namespace kitwright
