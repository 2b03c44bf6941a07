// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "moves.h"

#include "texts.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTreeView>

namespace kitwright::walking {

namespace {

struct Key {
    int key;
    Qt::KeyboardModifiers modifiers;
};

constexpr Qt::KeyboardModifiers none;
constexpr Qt::KeyboardModifiers shift = Qt::ShiftModifier;
constexpr Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers alt = Qt::AltModifier;

/// Each is pressed with any of `modifiers` below.
constexpr std::array movingKeys = {Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Up,     Qt::Key_Down,
                                   Qt::Key_Home,   Qt::Key_End,       Qt::Key_PageUp, Qt::Key_PageDown,
                                   Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Tab,    Qt::Key_Return,
                                   Qt::Key_Insert};
constexpr std::array modifiers = {none, none, none, shift, shift, ctrl, ctrl, ctrl | shift, alt | shift};

constexpr std::array otherKeys = {
    Key{Qt::Key_A, ctrl},
    Key{Qt::Key_C, ctrl},
    Key{Qt::Key_V, ctrl},
    Key{Qt::Key_V, ctrl},
    Key{Qt::Key_X, ctrl},
    Key{Qt::Key_Z, ctrl},
    Key{Qt::Key_Z, ctrl},
    Key{Qt::Key_Y, ctrl},
    Key{Qt::Key_Z, ctrl | shift},
    Key{Qt::Key_F, ctrl},
    Key{Qt::Key_F3, none},
    Key{Qt::Key_F3, shift},
    Key{Qt::Key_D, ctrl},
    Key{Qt::Key_L, ctrl},
    Key{Qt::Key_L, ctrl | shift},
    Key{Qt::Key_T, ctrl},
    Key{Qt::Key_T, ctrl | shift},
    Key{Qt::Key_U, ctrl},
    Key{Qt::Key_U, ctrl | shift},
    Key{Qt::Key_Plus, ctrl},
    Key{Qt::Key_Minus, ctrl},
    Key{Qt::Key_Slash, ctrl},
    Key{Qt::Key_BracketLeft, ctrl},
    Key{Qt::Key_Backslash, ctrl | shift},
    Key{Qt::Key_Space, none},
    Key{Qt::Key_Backtab, shift},
    Key{Qt::Key_Menu, none},
    Key{Qt::Key_Alt, none},
    Key{Qt::Key_F, alt},
    Key{Qt::Key_N, alt},
    Key{Qt::Key_S, ctrl},
    Key{Qt::Key_B, ctrl},
    Key{Qt::Key_K, ctrl},
};

constexpr std::array rareKeys = {
    Key{Qt::Key_Escape, none}, Key{Qt::Key_N, ctrl},  Key{Qt::Key_O, ctrl},     Key{Qt::Key_S, ctrl | shift},
    Key{Qt::Key_F1, none},     Key{Qt::Key_F4, ctrl}, Key{Qt::Key_Enter, none},
};

} // namespace

QPoint Moves::place(const QWidget& control)
{
    const QRect seen = control.visibleRegion().boundingRect();
    constexpr std::size_t middle = 60; // Percent.
    if (seen.isEmpty() || m_stage.chance.percent(middle))
        return seen.center();
    return {m_stage.chance.between(seen.left(), seen.right()), m_stage.chance.between(seen.top(), seen.bottom())};
}

void Moves::use(QWidget& control)
{
    if (auto* view = qobject_cast<QAbstractItemView*>(&control))
        clickEntry(*view, m_stage.chance.percent(40), m_stage.chance.percent(10));
    else if (auto* box = qobject_cast<QComboBox*>(&control))
        useBox(*box);
    else if (auto* bar = qobject_cast<QMenuBar*>(&control))
        m_stage.hands.click(*bar, bar->actionGeometry(m_stage.chance.of(bar->actions())).center());
    else if (qobject_cast<QLineEdit*>(&control) || qobject_cast<QPlainTextEdit*>(&control))
        write(control, toQt(valueText(m_stage.chance)));
    else
        m_stage.hands.click(control, place(control));
}

QModelIndex Moves::someEntry(QAbstractItemView& view)
{
    const QAbstractItemModel& model = *view.model();
    QModelIndex entry;
    auto* tree = qobject_cast<QTreeView*>(&view);
    do {
        const auto rows = static_cast<std::size_t>(model.rowCount(entry));
        entry = model.index(static_cast<int>(m_stage.chance.below(rows)), 0, entry);
        if (tree && model.hasChildren(entry) && m_stage.chance.percent(70))
            tree->expand(entry);
    } while (tree && model.hasChildren(entry) && tree->isExpanded(entry) && m_stage.chance.percent(80));
    return entry;
}

void Moves::clickEntry(QAbstractItemView& view, bool onTick, bool twice)
{
    constexpr std::size_t beside = 5; // Percent.
    if (view.model()->rowCount() == 0 || m_stage.chance.percent(beside)) {
        m_stage.hands.click(view, place(view));
        return;
    }
    const QModelIndex entry = someEntry(view);
    view.scrollTo(entry);
    const QRect room = view.visualRect(entry) & view.viewport()->rect();
    constexpr int tickDistance = 9;
    const QPoint at = onTick ? QPoint(room.left() + tickDistance, room.center().y()) : room.center();
    if (twice)
        m_stage.hands.doubleClick(*view.viewport(), at);
    else
        m_stage.hands.click(*view.viewport(), at);
}

void Moves::useBox(QComboBox& box)
{
    if (m_stage.chance.percent(60)) {
        m_stage.hands.click(box, place(box));
        return;
    }
    box.setFocus(Qt::TabFocusReason);
    if (m_stage.chance.percent(50))
        m_stage.hands.key(m_stage.chance.percent(50) ? Qt::Key_Down : Qt::Key_Up);
    else
        m_stage.hands.wheel(box, place(box), m_stage.chance.percent(50) ? 1 : -1);
}

void Moves::usePopup(QWidget& popup)
{
    const std::size_t choice = m_stage.chance.below(100);
    if (choice < 15) {
        m_stage.hands.key(Qt::Key_Escape);
    } else if (choice < 25) {
        m_stage.hands.click(popup, {-20, -20});
    } else if (choice < 40) {
        m_stage.hands.key(m_stage.chance.percent(70) ? Qt::Key_Down : Qt::Key_Return);
    } else if (auto* menu = qobject_cast<QMenu*>(&popup)) {
        useMenu(*menu);
    } else if (auto* view = popup.findChild<QAbstractItemView*>()) {
        clickEntry(*view, false, false);
    }
}

void Moves::useMenu(QMenu& menu)
{
    if (menu.actions().isEmpty())
        return;
    QAction* entry = m_stage.chance.of(menu.actions());
    m_stage.hands.click(menu, menu.actionGeometry(entry).center());
}

bool Moves::chooseMenuEntry(const QString& name)
{
    QMenuBar& bar = *m_stage.main().menuBar();
    if (!m_stage.reachableWindows().contains(&m_stage.main()) || QApplication::activePopupWidget())
        return false;
    QAction* entry = m_stage.main().findChild<QAction*>(name);
    for (QAction* top : bar.actions()) {
        if (top != entry && !(top->menu() && top->menu()->actions().contains(entry)))
            continue;
        m_stage.hands.click(bar, bar.actionGeometry(top).center());
        if (top != entry && top->menu()->isVisible())
            m_stage.hands.click(*top->menu(), top->menu()->actionGeometry(entry).center());
        return true;
    }
    return false;
}

void Moves::write(QWidget& box, const QString& text)
{
    m_stage.hands.click(box, place(box));
    if (m_stage.chance.percent(50))
        m_stage.hands.key(Qt::Key_A, ctrl);
    m_stage.hands.type(text);
}

void Moves::someKey()
{
    Chance& chance = m_stage.chance;
    const std::size_t choice = chance.below(100);
    if (choice < 55) {
        m_stage.hands.key(chance.of(movingKeys), chance.of(modifiers));
        return;
    }
    const Key pressed = choice < 92 ? chance.of(otherKeys) : chance.of(rareKeys);
    m_stage.hands.key(pressed.key, pressed.modifiers);
}

} // namespace kitwright::walking
