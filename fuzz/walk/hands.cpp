// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "hands.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QThread>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

namespace kitwright::walking {

namespace {

constexpr int step = 20; // ms

/// What the desktop sends along with a key.
QString textOf(int key, Qt::KeyboardModifiers modifiers)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return QStringLiteral("\r");
    case Qt::Key_Tab:
        return QStringLiteral("\t");
    case Qt::Key_Backspace:
        return QStringLiteral("\b");
    case Qt::Key_Escape:
        return QStringLiteral("\x1B");
    case Qt::Key_Delete:
        return QStringLiteral("\x7F");
    default:
        break;
    }
    if (key < Qt::Key_Space || key > Qt::Key_AsciiTilde)
        return {};
    constexpr int controlBits = 0x1F;
    return QChar(modifiers & Qt::ControlModifier ? key & controlBits : key);
}

/// True when a modal window keeps the mouse from this one.
bool isBlocked(const QWidget& window)
{
    const QWidget* modal = QApplication::activeModalWidget();
    return modal && modal != &window && !QApplication::activePopupWidget();
}

} // namespace

void Hands::send(QWidget* at, QPoint position, QEvent::Type type, Qt::MouseButton button,
                 Qt::KeyboardModifiers modifiers)
{
    const bool isThere = at && at->isVisible() && at->window()->windowHandle();
    if (isThere)
        m_position = at->mapToGlobal(position);
    QWindow* window = isThere ? at->window()->windowHandle() : QGuiApplication::focusWindow();
    if (!window)
        return;
    m_time += step;
    qt_handleMouseEvent(window, window->mapFromGlobal(m_position), m_position, m_down, button, type, modifiers,
                        m_time);
}

void Hands::press(QWidget& at, QPoint position, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWidget> target = &at;
    QWidget* window = at.window();
    if (!QApplication::activePopupWidget() && QApplication::activeWindow() != window && !isBlocked(*window)) {
        window->raise();
        window->activateWindow();
    }
    send(target, position, QEvent::MouseMove, Qt::NoButton, modifiers);
    m_down = button;
    send(target, position, QEvent::MouseButtonPress, button, modifiers);
}

void Hands::move(QWidget& at, QPoint position, Qt::KeyboardModifiers modifiers)
{
    send(&at, position, QEvent::MouseMove, Qt::NoButton, modifiers);
}

void Hands::release(QWidget* at, QPoint position, Qt::KeyboardModifiers modifiers)
{
    const Qt::MouseButton released = m_down;
    m_down = Qt::NoButton;
    send(at, position, QEvent::MouseButtonRelease, released, modifiers);
    m_time += 2 * doubleClickInterval;
}

void Hands::click(QWidget& at, QPoint position, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWidget> target = &at;
    press(at, position, button, modifiers);
    release(target, position, modifiers);
}

void Hands::doubleClick(QWidget& at, QPoint position)
{
    const QPointer<QWidget> target = &at;
    click(at, position);
    m_time -= 2 * doubleClickInterval;
    if (target)
        click(at, position);
}

void Hands::wheel(QWidget& at, QPoint position, int notches, Qt::KeyboardModifiers modifiers)
{
    QWindow* window = at.window()->windowHandle();
    if (!window || isBlocked(*at.window()))
        return;
    constexpr int notch = 120;
    const QPoint global = at.mapToGlobal(position);
    QWheelEvent event(window->mapFromGlobal(global), global, {}, {0, notches * notch}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(window, &event);
}

void Hands::key(int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    // A list adds a letter that follows within the same millisecond to what it searches.
    constexpr unsigned long pause = 2; // ms
    if (qobject_cast<QAbstractItemView*>(QApplication::focusWidget()))
        QThread::msleep(pause);
    // Each half goes to the window that has the keyboard then: a press may open or close one.
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (QWindow* window = QGuiApplication::focusWindow())
            qt_handleKeyEvent(window, type, key, modifiers, text.isEmpty() ? textOf(key, modifiers) : text);
    }
}

void Hands::type(const QString& text)
{
    for (const uint character : text.toUcs4()) {
        const char32_t codePoint = character;
        const QString one = QString::fromUcs4(&codePoint, 1);
        if (character == '\n')
            key(Qt::Key_Return);
        else
            key(character < 0x80 ? one.toUpper().front().unicode() : int{Qt::Key_unknown}, {}, one);
    }
}

} // namespace kitwright::walking
