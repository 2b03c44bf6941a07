// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/document_commands.h"

#include "app/starting_text.h"
#include "services/config_scanner.h"
#include "services/paths.h"
#include "text/letter_case.h"

#include <utility>

namespace kitwright {

namespace {

constexpr const char* configFilter = "Config files|*.cpp*";
constexpr const char* configAndAllFilter = "Config files|*.cpp*|All files|*.*";

/// Bytes of the longest line that is opened. The control lays a line out whole at every keystroke in it, for about a
/// second at this length; no config has such a line, but the wrong file may have.
constexpr std::size_t longestLine = 1'000'000;

} // namespace

DocumentCommands::DocumentCommands(Context& context, TableStore& strings, SetCaption setCaption,
                                   ShowOpened showOpened)
    : m_context(context),
      m_strings(strings),
      m_setCaption(std::move(setCaption)),
      m_showOpened(std::move(showOpened))
{
    CommonDialog1.defaultExtension = "cpp";
}

void DocumentCommands::newDocument()
{
    m_context.state.CurrentFile.clear();
    // A text that did not reach the disk stays in the editor.
    if (!UlozAddon())
        return;
    m_context.host->configedit().setText("");
    if (!m_context.state.Settings.InsertBaseText)
        return;
    askForPatchClassName();
    VlozText(m_context.state.PatchClassName);
}

void DocumentCommands::open()
{
    CommonDialog1.filter = configFilter;
    CommonDialog1.fileName = "Config.cpp";
    const auto path = m_context.dialogs.openFile(CommonDialog1);
    if (!path || path->empty() || !NactiConfig(*path, m_context.host->configedit()))
        return;
    m_context.state.CurrentFile = *path;
    m_setCaption(m_context.text(UiText::MainWindowTitle) + " - " + *path);
    m_context.report("reading the stringtable", m_strings.open(*path));
}

bool DocumentCommands::UlozAddon()
{
    std::string& CurrentFile = m_context.state.CurrentFile;
    if (CurrentFile.empty() && !askForFile())
        return false;
    const bool written = UlozConfig(CurrentFile);
    m_context.report("writing the stringtable",
                     m_strings.WriteStringtable(FolderOf(CurrentFile) + "Stringtable.csv"));
    return written;
}

/// Lets the author choose where a document that has no path shall be; false when the choice was cancelled.
bool DocumentCommands::askForFile()
{
    CommonDialog1.filter = configFilter;
    CommonDialog1.fileName = "config.cpp";
    CommonDialog1.title = m_context.text(UiText::SaveAddonTitle);
    const auto path = m_context.dialogs.saveFile(CommonDialog1);
    if (!path || path->empty())
        return false;

    m_context.state.CurrentFile = *path;
    const std::string name = FileNameOf(*path);
    if (upperCased(name) == "CONFIG.CPP")
        return true;
    const std::string question = m_context.text(UiText::RenameReason) + "\r\n"
                               + m_context.text(UiText::RenameChosenName) + name + "\r\n"
                               + m_context.text(UiText::RenameQuestion);
    if (m_context.dialogs.askYesNo(question))
        m_context.state.CurrentFile = FolderOf(*path) + "Config.cpp";
    return true;
}

void DocumentCommands::saveAs()
{
    m_context.state.CurrentFile.clear();
    CommonDialog1.filter = configAndAllFilter;
    CommonDialog1.fileName = "config.cpp";
    CommonDialog1.title = m_context.text(UiText::SaveAsTitle);
    const auto path = m_context.dialogs.saveFile(CommonDialog1);
    if (!path || path->empty())
        return;
    m_context.state.CurrentFile = *path;
    UlozConfig(*path);
}

void DocumentCommands::makePbo()
{
    if (m_context.state.CurrentFile.empty()) {
        m_context.dialogs.showMessage(m_context.text(UiText::SaveBeforePacking));
        return;
    }
    if (m_context.state.PatchClassName.empty())
        askForPatchClassName();
    m_context.report("starting the packer", startPacker());
}

/// The name of the add-on names the packer's file. One out of a stranger's document may be made to lead elsewhere, or
/// to give the packer further orders.
Failure DocumentCommands::startPacker()
{
    const std::string& name = m_context.state.PatchClassName;
    if (!name.empty() && (!isPlainFileName(name) || name.find(',') != std::string::npos))
        return name + ": cannot name a file";
    return m_context.launcher.start(m_context.inProgramFolder("/brakpak.exe"), packerArgument(m_context.state));
}

void DocumentCommands::VlozText(const std::string& Jmeno)
{
    const std::string version = m_context.dialogs.askText(m_context.text(UiText::AskRequiredVersion));
    m_context.host->configedit().setText(startingText(Jmeno, version));
    m_context.host->Uprav2();
}

/// Sets the editor's text to the content of the file, and the name of the add-on to that in it. A file that cannot be
/// read, is in UTF-16, or has an endless line leaves both as they were.
bool DocumentCommands::NactiConfig(const std::string& Soubor, RichTextBox& TextovePole) const
{
    Outcome<std::string> text = m_context.texts.readDocument(Soubor);
    if (!text) {
        m_context.report("opening", text.reason());
        return false;
    }
    std::string document = withCrLf(std::move(*text));
    if (hasLineLongerThan(longestLine, document)) {
        m_context.report("opening", Soubor + ": a line is too long to be edited");
        return false;
    }
    // As the file spells it, which the colouring may change.
    ReadPatchClassName(document, m_context.state.PatchClassName);
    m_showOpened(TextovePole, std::move(document));
    return true;
}

bool DocumentCommands::UlozConfig(const std::string& Cesta)
{
    const Failure failure = m_context.texts.write(Cesta, m_context.host->configedit().text());
    m_context.report("saving", failure);
    return !failure;
}

void DocumentCommands::askForPatchClassName()
{
    m_context.state.PatchClassName = m_context.dialogs.askText(m_context.text(UiText::AskPatchClassName));
}

std::string packerArgument(const SharedState& state)
{
    return "  " + state.CurrentFile + "," + state.Settings.PboFolder + "\\" + state.PatchClassName + ".pbo,2";
}

} // namespace kitwright
