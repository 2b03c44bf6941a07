// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QEvent>
#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;

namespace kitwright::walking {

/// A mouse and a keyboard: what they do enters at the window, as it does from the desktop, so that focus, modal
/// windows, open menus and shortcuts decide where it ends. Positions are those of the control that is aimed at.
class Hands {
public:
    /// The window comes to the front first, as a window manager has it.
    void press(QWidget& at, QPoint position, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = {});
    void move(QWidget& at, QPoint position, Qt::KeyboardModifiers modifiers = {});

    /// The control may be gone since the press; the button comes up all the same.
    void release(QWidget* at, QPoint position, Qt::KeyboardModifiers modifiers = {});

    void click(QWidget& at, QPoint position, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = {});
    void doubleClick(QWidget& at, QPoint position);

    /// `notches` up, or down when negative.
    void wheel(QWidget& at, QPoint position, int notches, Qt::KeyboardModifiers modifiers = {});

    /// Presses and releases a key in the window that has the keyboard. Without a text, the key's own goes with it.
    void key(int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {});
    void type(const QString& text);

    bool isDown() const { return m_down != Qt::NoButton; }

    static constexpr int doubleClickInterval = 20'000; ///< ms, so long that no pause of this machine counts.

private:
    void send(QWidget* at, QPoint position, QEvent::Type type, Qt::MouseButton button,
              Qt::KeyboardModifiers modifiers);

    Qt::MouseButton m_down = Qt::NoButton;
    QPoint m_position; ///< On the screen.
    int m_time = 0;    ///< ms
};

} // namespace kitwright::walking
