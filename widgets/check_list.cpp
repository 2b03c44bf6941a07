// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/check_list.h"

#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>

namespace kitwright {

CheckList::CheckList(QWidget* parent) : QListWidget(parent)
{
    setUniformItemSizes(true);
    connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
        if (m_quiet || row < 0)
            return;
        // An entry that became current as the list took the keyboard focus is shown highlighted like any other.
        if (!item(row)->isSelected())
            selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
        tell(row);
    });
    connect(this, &QListWidget::itemChanged, this, [this](const QListWidgetItem* item) { itemTicked(*item); });
    // A second click on the entry that is current already changes nothing in the list, but is a click all the same.
    connect(this, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
        if (!m_quiet && !m_told)
            tell(row(item));
    });
}

void CheckList::mousePressEvent(QMouseEvent* event)
{
    m_told = false;
    QListWidget::mousePressEvent(event);
}

void CheckList::tell(int row)
{
    m_told = true;
    Q_EMIT entryClicked(row);
}

int CheckList::addEntry(const QString& text, const QString& toolTip)
{
    const QScopedValueRollback quiet(m_quiet, true);
    auto* item = new QListWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
    item->setToolTip(toolTip);
    addItem(item);
    return count() - 1;
}

bool CheckList::isTicked(int row) const
{
    const QListWidgetItem* entry = item(row);
    return entry && entry->checkState() == Qt::Checked;
}

void CheckList::setTicked(int row, bool ticked)
{
    const QScopedValueRollback quiet(m_quiet, true);
    QListWidgetItem* entry = item(row);
    if (entry && isTicked(row) != ticked)
        entry->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
}

void CheckList::setTicks(const std::vector<bool>& ticks)
{
    // One repaint instead of a change signal for each entry: that is what makes thousands of entries quick.
    const QSignalBlocker modelQuiet(model());
    const int entries = std::min(count(), static_cast<int>(ticks.size()));
    for (int row = 0; row < entries; ++row)
        setTicked(row, ticks[static_cast<std::size_t>(row)]);
    viewport()->update();
}

void CheckList::setEntryText(int row, const QString& text)
{
    const QScopedValueRollback quiet(m_quiet, true);
    if (QListWidgetItem* entry = item(row))
        entry->setText(text);
}

void CheckList::choose(int row)
{
    if (row < 0 || row >= count())
        return;
    if (currentRow() == row)
        tell(row);
    else
        setCurrentRow(row);
}

void CheckList::removeAll()
{
    const QScopedValueRollback quiet(m_quiet, true);
    clear();
}

void CheckList::removeEntry(int row)
{
    const QScopedValueRollback quiet(m_quiet, true);
    delete takeItem(row);
    setCurrentRow(-1);
}

void CheckList::itemTicked(const QListWidgetItem& item)
{
    if (m_quiet)
        return;
    const int ticked = row(&item);
    if (ticked != currentRow())
        setCurrentRow(ticked);
    else
        tell(ticked);
}

} // namespace kitwright
