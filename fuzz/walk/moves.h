// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "stage.h"
#include "step.h"

class QAbstractItemView;
class QComboBox;
class QMenu;

namespace kitwright::walking {

/// What a hand does to a control, by what the control is. All of it happens at once.
class Moves {
public:
    explicit Moves(Stage& stage) : m_stage(stage) {}

    /// Clicks a button, opens a box, chooses an entry, puts the caret somewhere.
    void use(QWidget& control);

    /// Clicks an entry of a list or tree, which is brought into view: on its text, on its tick box, or twice.
    void clickEntry(QAbstractItemView& view, bool onTick, bool twice);

    /// Chooses in an open menu or list, or closes it.
    void usePopup(QWidget& popup);

    /// Clicks a menu of the main window and an entry of it; false when it cannot be reached.
    bool chooseMenuEntry(const QString& name);

    /// Goes into a box with the mouse and types, sometimes over what is there.
    void write(QWidget& box, const QString& text);

    /// One of the keys that boxes, lists and windows know.
    void someKey();

    /// A place of a control that can be seen, the middle more often than not.
    QPoint place(const QWidget& control);

private:
    QModelIndex someEntry(QAbstractItemView& view);
    void useMenu(QMenu& menu);
    void useBox(QComboBox& box);

    Stage& m_stage;
};

} // namespace kitwright::walking
