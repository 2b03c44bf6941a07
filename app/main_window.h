// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/document_commands.h"
#include "app/keyword_list.h"
#include "app/live_colouring.h"
#include "app/proportional_layout.h"
#include "editor/scintilla_text_box.h"
#include "services/context.h"
#include "stringtable/table_store.h"

#include <QMainWindow>

#include <functional>
#include <memory>
#include <optional>
#include <string>

class QAbstractButton;

namespace Ui {
class fmrconfigedit;
}

namespace kitwright {

/// The main window: the document, its commands and the two browsers. Whatever lies beyond it, it asks for by signals.
class fmrconfigedit final : public QMainWindow, public AddonHost {
    Q_OBJECT

public:
    /// All of it must outlive the window. Trees and list are filled before `showTrees`.
    fmrconfigedit(Context& context, TableStore& strings, const KeywordTree& classes, const KeywordTree& commands,
                  const KeywordList& keywords);
    ~fmrconfigedit() override;

    /// Switches live colouring on: the last step of start-up.
    void startColouring() { m_startUp.reset(); }

    /// Shows the window for the first time, in a size that suits the screen.
    void showFitted();

    /// Shows the nodes of the two trees as they are now.
    void showTrees();

    RichTextBox& configedit() override { return m_box; }
    const KeywordTree& classes() const override { return m_classes; }
    bool UlozAddon() override { return m_commands.UlozAddon(); }
    void VlozText(const std::string& Jmeno) override { m_commands.VlozText(Jmeno); }
    void Uprav2() override;
    void beginDocumentChange() override;
    void endDocumentChange() override;

Q_SIGNALS:
    /// The author wants another window, by its name: modal, or to work beside.
    void modalWanted(std::string_view name);
    void besideWanted(std::string_view name);

    /// Around a full pass over a document of so many bytes.
    void fullPassBegins(std::size_t length);
    void fullPassEnds();

    /// The author ends the program.
    void endWanted();

    /// The window closes, for whatever reason.
    void closing();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connectDocumentCommands();
    void connectWindows();
    void connectBrowsers();
    void layOut();
    void showOpened(RichTextBox& editor, std::string text);
    void fullPass(std::size_t length, const std::function<void()>& colour);

    Context& m_context;
    const KeywordTree& m_classes;
    const KeywordTree& m_commandTree;
    const KeywordList& m_keywords;
    std::unique_ptr<Ui::fmrconfigedit> m_ui;
    ScintillaTextBox m_box;
    LiveColouring m_live;
    DocumentCommands m_commands;

    std::optional<LiveColouring::Pause> m_startUp;
    std::optional<LiveColouring::Pause> m_change; ///< While document changes are open.
    int m_changes = 0;                            ///< Open document changes.
    bool m_colouringDue = false;                  ///< A full pass waits for their end.

    std::optional<ProportionalLayout> m_layout;
};

} // namespace kitwright
