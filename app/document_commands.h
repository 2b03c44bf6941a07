// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/dialogs.h"
#include "platform/program_launcher.h"
#include "services/context.h"
#include "text/text_files.h"

#include <string>

namespace kitwright {

/// What the document commands need of the main window and of the stringtable.
class DocumentSurroundings {
public:
    virtual ~DocumentSurroundings() = default;

    virtual void setCaption(const std::string& caption) = 0;

    /// Live colouring ignores changes while this is false.
    virtual void setColouringEnabled(bool enabled) = 0;

    /// The refresh command: a full pass with live colouring off.
    virtual void refresh() = 0;

    /// A document was opened; its stringtable is the one beside it, if there is one.
    virtual void readStringtable(const std::string& configPath) = 0;

    virtual void WriteStringtable(const std::string& path) = 0;

    /// A step failed and was skipped.
    virtual void stepFailed(const char* step, const Failure& failure) = 0;
};

/// The commands that act on the document as a whole.
class DocumentCommands {
public:
    /// All of it must outlive the commands.
    DocumentCommands(Context& context, ProgramLauncher& launcher, DocumentSurroundings& surroundings);

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
    bool NactiConfig(const std::string& Soubor, RichTextBox& TextovePole);
    bool UlozConfig(const std::string& Cesta);
    bool askForFile();
    void askForPatchClassName();
    Failure startPacker();

    Context& m_context;
    ProgramLauncher& m_launcher;
    DocumentSurroundings& m_surroundings;
    FileDialog CommonDialog1; ///< Keeps what one use sets, its title above all, until another use changes it.
};

/// Everything that the packer gets after its own path.
std::string packerArgument(const SharedState& state);

} // namespace kitwright
