// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QListWidget>

#include <vector>

namespace kitwright {

/// A list with a tick box per entry. A click on a tick box also highlights its entry, and whatever way an entry is
/// chosen or ticked (mouse, keyboard, assistive technology) ends in one `entryClicked`.
class CheckList final : public QListWidget {
    Q_OBJECT

public:
    explicit CheckList(QWidget* parent = nullptr);

    /// Appends an unticked entry; returns its row, from 0.
    int addEntry(const QString& text, const QString& toolTip = {});

    bool isTicked(int row) const;

    /// Ticks or clears an entry for the program: no `entryClicked`, no change of the highlight.
    void setTicked(int row, bool ticked);

    /// As `setTicked` for every entry from the first on, as many as `ticks` has; quick for thousands of entries.
    void setTicks(const std::vector<bool>& ticks);

    /// Changes what an entry says; not a click.
    void setEntryText(int row, const QString& text);

    /// Highlights an entry for the program, which counts as a click on it.
    void choose(int row);

    /// Empties the list; not a click.
    void removeAll();

    /// Removes an entry. The list then has no highlighted entry; not a click.
    void removeEntry(int row);

Q_SIGNALS:
    /// An entry became current, was clicked again, or was ticked or cleared; it is current when this is sent.
    void entryClicked(int row);

private:
    void mousePressEvent(QMouseEvent* event) override;
    void itemTicked(const QListWidgetItem& item);
    void tell(int row);

    bool m_quiet = false;
    bool m_told = false; ///< `entryClicked` was sent since a mouse button was pressed.
};

} // namespace kitwright
