// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/desktop.h"
#include "app/document_commands.h"
#include "app/keyword_list.h"
#include "app/live_colouring.h"
#include "app/proportional_layout.h"
#include "app/window_supplier.h"
#include "editor/scintilla_text_box.h"
#include "services/context.h"

#include <QMainWindow>

#include <memory>
#include <optional>

class QAbstractButton;

namespace Ui {
class fmrconfigedit;
}

namespace kitwright {

/// The main window: the document, its commands and the two browsers.
class fmrconfigedit final : public QMainWindow, public AddonHost, private DocumentSurroundings {
    Q_OBJECT

public:
    /// All of it must outlive the window.
    fmrconfigedit(const Desktop& desktop, SharedState& state, const KeywordList& keywords, WindowSupplier& windows);
    ~fmrconfigedit() override;

    /// What the other windows are built from; its host is this window.
    Context& context() { return m_context; }

    /// Switches live colouring on: the last step of start-up.
    void startColouring();

    /// Shows the window for the first time, in a size that suits the screen.
    void showFitted();

    /// Shows the nodes of the two trees.
    void showTrees(const KeywordTree& classes, const KeywordTree& commands);

    RichTextBox& configedit() override { return m_box; }
    const KeywordTree& classes() const override { return *m_classes; }
    bool UlozAddon() override;
    void VlozText(const std::string& Jmeno) override;
    void Uprav2() override;
    void beginDocumentChange() override;
    void endDocumentChange() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setCaption(const std::string& caption) override;
    void setColouringEnabled(bool enabled) override;
    void refresh() override;
    void readStringtable(const std::string& configPath) override;
    void WriteStringtable(const std::string& path) override;
    void stepFailed(const char* step, const Failure& failure) override;

    void connectDocumentCommands();
    void connectWindows();
    void connectBrowsers();
    void layOut();

    Context m_context;
    WindowSupplier& m_windows;
    const KeywordList& m_keywords;
    std::unique_ptr<Ui::fmrconfigedit> m_ui;
    ScintillaTextBox m_box;
    LiveColouring m_live;
    DocumentCommands m_commands;
    const KeywordTree* m_classes = nullptr;
    const KeywordTree* m_commandTree = nullptr;

    int m_changes = 0;           ///< Open document changes.
    bool m_colouringDue = false; ///< A full pass waits for their end.

    std::optional<ProportionalLayout> m_layout;
};

} // namespace kitwright
