// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/browser_tree.h"

#include "platform/qt_text.h"
#include "platform/shown_text.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>

namespace kitwright {

namespace {

constexpr int nodeRole = Qt::UserRole;

/// An entry with its parents, outermost first.
QString pathOf(const QTreeWidgetItem* item)
{
    QStringList path;
    for (; item; item = item->parent())
        path.prepend(item->text(0));
    return path.join(QStringLiteral(" \u203A "));
}

} // namespace

BrowserTree::BrowserTree(QWidget* parent) : QTreeWidget(parent)
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(this, &QTreeWidget::itemClicked, this, [this](const QTreeWidgetItem* item) { click(*item); });
}

void BrowserTree::showTree(const KeywordTree& tree)
{
    clear();
    m_tree = &tree;
    QList<QTreeWidgetItem*> items;
    QList<QTreeWidgetItem*> topLevel;
    QFont headingFont = font();
    headingFont.setBold(true);
    items.reserve(static_cast<qsizetype>(tree.nodes().size()));
    for (const TreeNode& node : tree.nodes()) {
        auto* item =
            node.parent == TreeNode::noParent ? new QTreeWidgetItem : new QTreeWidgetItem(items[node.parent]);
        item->setText(0, shownText(node.text));
        item->setData(0, nodeRole, static_cast<int>(items.size()));
        if (node.isHeading())
            item->setFont(0, headingFont);
        items << item;
        if (node.parent == TreeNode::noParent)
            topLevel << item;
    }
    addTopLevelItems(topLevel);
    expandToDepth(0);
}

void BrowserTree::click(const QTreeWidgetItem& item)
{
    Q_EMIT nodeClicked(m_tree->nodes()[item.data(0, nodeRole).toUInt()]);
}

void BrowserTree::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentItem())
        click(*currentItem());
    else
        QTreeWidget::keyPressEvent(event);
}

bool BrowserTree::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QTreeWidget::viewportEvent(event);
    const auto* help = static_cast<const QHelpEvent*>(event);
    if (const QTreeWidgetItem* item = itemAt(help->pos()))
        QToolTip::showText(help->globalPos(), shownText(fromQt(pathOf(item))), viewport(), visualItemRect(item));
    else
        QToolTip::hideText();
    return true;
}

} // namespace kitwright
