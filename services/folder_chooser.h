// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/context.h"

#include <QDialog>

#include <memory>
#include <string>

class QListWidgetItem;

namespace Ui {
class Form6;
}

namespace kitwright {

/// The folder chooser, modal. `Dir1` shows the open folder below its parents and above its subfolders. A double
/// click or Enter opens an entry; a click, or a move with the arrow keys, picks the folder that is open.
class Form6 final : public QDialog {
    Q_OBJECT

public:
    explicit Form6(Context& context, QWidget* parent = nullptr);
    ~Form6() override;

    /// The folder picked last. Empty until the first click, and again after the close box or Esc.
    std::string FolderPath;

public Q_SLOTS:
    /// The close box and Esc: the window is as new when it is shown next.
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void listDrives();
    void openFirstFolder();
    bool openFolder(const std::string& folder);
    void showFolder(const std::vector<std::string>& subfolders);
    QListWidgetItem* addFolder(const QString& name, const std::string& path, int level, bool isOpen);
    void openEntry(const QListWidgetItem* entry);
    void pick();

    Context& m_context;
    std::unique_ptr<Ui::Form6> m_ui;
    std::string m_openFolder; ///< The current path of `Dir1`; empty until the window is first shown.
    bool m_filling = false;
};

} // namespace kitwright
