// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/keyword_tree.h"

#include <QTreeWidget>

namespace kitwright {

/// A tree of class names or commands. Clicking an entry, or pressing Enter on it, is a click; typing finds.
class BrowserTree final : public QTreeWidget {
    Q_OBJECT

public:
    explicit BrowserTree(QWidget* parent = nullptr);

    /// Shows the nodes of a tree, first level open. The tree must outlive the control.
    void showTree(const KeywordTree& tree);

Q_SIGNALS:
    void nodeClicked(const TreeNode& node);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void click(const QTreeWidgetItem& item);

    const KeywordTree* m_tree = nullptr;
};

} // namespace kitwright
