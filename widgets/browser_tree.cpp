// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/browser_tree.h"

#include "platform/qt_text.h"
#include "platform/shown_text.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>

namespace kitwright {

namespace {

constexpr int indexRole = Qt::UserRole;

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

void BrowserTree::showEntries(const std::vector<BrowserEntry>& entries)
{
    clear();
    QList<QTreeWidgetItem*> items;
    QList<QTreeWidgetItem*> topLevel;
    QFont headingFont = font();
    headingFont.setBold(true);
    items.reserve(static_cast<qsizetype>(entries.size()));
    for (const BrowserEntry& entry : entries) {
        const bool isTop = entry.parent < 0;
        auto* item = isTop ? new QTreeWidgetItem : new QTreeWidgetItem(items[entry.parent]);
        item->setText(0, shownText(entry.text));
        item->setData(0, indexRole, static_cast<qulonglong>(items.size()));
        if (entry.isHeading)
            item->setFont(0, headingFont);
        items << item;
        if (isTop)
            topLevel << item;
    }
    addTopLevelItems(topLevel);
    expandToDepth(0);
}

void BrowserTree::click(const QTreeWidgetItem& item)
{
    Q_EMIT entryClicked(item.data(0, indexRole).toULongLong());
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
