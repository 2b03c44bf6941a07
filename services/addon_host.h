// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/keyword_tree.h"
#include "text/rich_text_box.h"

#include <string>

namespace kitwright {

/// What the windows around the main window may ask of it.
class AddonHost {
public:
    virtual ~AddonHost() = default;

    /// The editor that holds the document.
    virtual RichTextBox& configedit() = 0;

    /// The tree of the game's classes.
    virtual const KeywordTree& classes() const = 0;

    /// The save command: asks for a file when there is none yet, writes the document and its stringtable.
    /// `CurrentFile` stays empty when the author cancels. True when the document reached the disk.
    virtual bool UlozAddon() = 0;

    /// Asks for the required version and replaces the document by the starting text of a new add-on named `Jmeno`.
    virtual void VlozText(const std::string& Jmeno) = 0;

    /// Colours the whole document.
    virtual void Uprav2() = 0;

    /// Between the two, edits of the document are one undo step, typing is not coloured live, and calls of `Uprav2`
    /// are gathered into one at the end. Pairs may nest. See `DocumentChange`.
    virtual void beginDocumentChange() = 0;
    virtual void endDocumentChange() = 0;
};

/// Makes what its scope does to the document one undo step that is coloured once.
class DocumentChange {
public:
    explicit DocumentChange(AddonHost& host) : m_host(host) { m_host.beginDocumentChange(); }
    ~DocumentChange() { m_host.endDocumentChange(); }
    DocumentChange(const DocumentChange&) = delete;
    DocumentChange& operator=(const DocumentChange&) = delete;

private:
    AddonHost& m_host;
};

/// Declares a class of the class tree with its ancestors at the end of the document, then has it coloured. Nothing
/// happens when the class has no declaration.
void DeclareBaseClasses(AddonHost& host, std::string_view className);

} // namespace kitwright
