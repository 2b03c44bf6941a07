// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTreeWidget>

#include <string_view>
#include <vector>

namespace kitwright {

/// One entry of a browser tree.
struct BrowserEntry {
    std::string_view text;  ///< UTF-8; read while the tree is filled only.
    int parent = -1;        ///< Index of the entry above it, which stands before it; -1 for a top-level one.
    bool isHeading = false; ///< Shown in bold.
};

/// A tree of words to choose from. Clicking an entry, or pressing Enter on it, is a click; typing finds.
class BrowserTree final : public QTreeWidget {
    Q_OBJECT

public:
    explicit BrowserTree(QWidget* parent = nullptr);

    /// Shows entries in their order, first level open.
    void showEntries(const std::vector<BrowserEntry>& entries);

Q_SIGNALS:
    /// An entry was clicked; its index among those shown, from 0.
    void entryClicked(std::size_t index);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void click(const QTreeWidgetItem& item);
};

} // namespace kitwright
