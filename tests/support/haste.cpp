// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/haste.h"

#include "editor/scintilla_control.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace kitwright::testing {

namespace {

using Window = QPointer<QWindow>; ///< That of a menu is gone once it is closed.

/// The visible controls of a window that the program has named, and the window.
QList<QWidget*> controls(QWidget& window)
{
    QList<QWidget*> all{&window};
    for (QWidget* control : window.findChildren<QWidget*>(QRegularExpression(QStringLiteral("^(?!qt_).+")))) {
        if (control->window() == &window && !control->visibleRegion().isEmpty())
            all << control;
    }
    return all;
}

void press(const Window& window, QKeyCombination key, const QString& text = {})
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (window)
            qt_handleKeyEvent(window, type, key.key(), key.keyboardModifiers(), text);
    }
}

void type(const Window& window, const QString& text)
{
    for (const QChar& character : text)
        press(window, character == '\n' ? Qt::Key_Return : Qt::Key_unknown, character);
}

constexpr int longPause = 20'000; ///< ms, beside which no pause of this machine counts.

void mouse(const Window& window, QEvent::Type type, QPoint at, Qt::MouseButton button = Qt::LeftButton,
           Qt::KeyboardModifiers modifiers = {})
{
    const bool isDown = type != QEvent::MouseButtonRelease;
    if (window)
        qt_handleMouseEvent(window, at, window->mapToGlobal(at), isDown ? button : Qt::NoButton,
                            type == QEvent::MouseMove ? Qt::NoButton : button, type, modifiers,
                            QTest::lastMouseTimestamp);
}

void click(const Window& window, QPoint at, Qt::MouseButton button = Qt::LeftButton)
{
    mouse(window, QEvent::MouseButtonPress, at, button);
    mouse(window, QEvent::MouseButtonRelease, at, button);
}

void drag(const Window& window, QPoint from, QPoint to, Qt::KeyboardModifiers modifiers)
{
    mouse(window, QEvent::MouseButtonPress, from, Qt::LeftButton, modifiers);
    mouse(window, QEvent::MouseMove, (from + to) / 2);
    mouse(window, QEvent::MouseMove, to);
    mouse(window, QEvent::MouseButtonRelease, to, Qt::LeftButton, modifiers);
}

void turnWheel(const Window& window, QPoint at)
{
    QWheelEvent event(at, window->mapToGlobal(at), {}, {0, -360}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window, &event);
}

} // namespace

Haste::Haste(RunningApplication& app, unsigned seed) : m_app(app), m_random(seed)
{
    for (const char* path : {"/m/config.cpp", "/m/gun.p3d", "/m/Stringtable.csv", "/m/head.jpg"})
        m_app.files.files.try_emplace(path, path);
    m_app.dialogs.otherwise = [this](const std::string& dialog) { return answer(dialog); };
}

std::string Haste::answer(const std::string& dialog)
{
    if (below(4) == 0)
        return "cancel";
    if (dialog == "open" || dialog == "save")
        return any(m_table[2]);
    return dialog == "colour" ? "#123456" : dialog == "yes/no" ? "yes" : any(m_table[1]);
}

void Haste::run(int events)
{
    if (!m_app.isRunning() || !m_app.program().mainWindow().isVisible())
        return;
    const QSignalBlocker button(m_app.control("Command1"));
    const QSignalBlocker entry(m_app.control<QAction>("mnufilekonec"));
    // The editor follows its widest line by the clock.
    m_app.control<ScintillaControl>("configedit").setScrollWidthTracking(false);
    const int usualInterval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(longPause);
    QApplication::setKeyboardInputInterval(longPause);
    m_outer = QApplication::activeModalWidget();
    for (m_left = events; !isDone();) {
        post();
        QCoreApplication::processEvents();
    }
    QApplication::setDoubleClickInterval(usualInterval);
    QCoreApplication::removePostedEvents(this);
    m_isPosted = false;
}

bool Haste::isDone() const
{
    const QWidget* modal = QApplication::activeModalWidget();
    return m_left <= 0 && !QApplication::activePopupWidget() && (!modal || modal == m_outer);
}

/// Each step orders the next one first, which so comes from the loop of a modal window that this one opens.
void Haste::post()
{
    if (!std::exchange(m_isPosted, true))
        QMetaObject::invokeMethod(this, &Haste::step, Qt::QueuedConnection);
}

void Haste::step()
{
    m_isPosted = false;
    post();
    if (m_left-- > 0)
        act(*someWindow());
    else if (!m_isLeaving)
        leave(*someWindow());
}

/// Ends what has a loop of its own.
void Haste::leave(QWidget& window)
{
    const QScopedValueRollback leaving(m_isLeaving, true);
    if (m_isDragging || QApplication::activePopupWidget())
        press(window.windowHandle(), Qt::Key_Escape);
    else if (!isDone())
        window.close();
}

/// One that a mouse reaches.
QWidget* Haste::someWindow()
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    QList<QWidget*> windows{&m_app.program().mainWindow()};
    for (QDialog* dialog : windows[0]->findChildren<QDialog*>()) {
        if (dialog->isVisible() && dialog->windowHandle())
            windows << dialog;
    }
    return any(windows);
}

void Haste::act(QWidget& window)
{
    if (!QApplication::activePopupWidget())
        window.activateWindow();
    const Window handle = window.windowHandle();
    const QWidget& control = *any(controls(window));
    const QRect seen = control.visibleRegion().boundingRect();
    if (seen.isEmpty())
        return window.resize(900, 700);
    const QPoint corner = control.mapTo(&window, seen.topLeft());
    const QPoint place = corner + QPoint(below(seen.width()), below(seen.height()));
    const QPoint atItsTick(corner.x() + std::min(9, seen.width() - 1), place.y());
    QTest::lastMouseTimestamp += 2 * longPause;
    const int kind = below(25);
    if (kind < 9)
        return click(handle, below(3) == 0 ? atItsTick : place);
    if (kind < 15)
        return press(handle, QKeySequence(toQt(any(m_table[0])))[0]);
    if (kind < 18)
        return type(handle, toQt(any(m_table[1])));
    if (kind == 18)
        return turnWheel(handle, place);
    if (kind == 19)
        return click(handle, place, Qt::RightButton);
    if (kind == 20)
        return window.resize(any(QList<QSize>{{600, 500}, {2500, 100}, {0, 0}}));
    if (kind == 21)
        return QGuiApplication::clipboard()->setText(toQt(any(m_table[1]) + '\n' + any(m_table[1])));
    if (kind == 22 && &window != &m_app.program().mainWindow())
        return void(window.close());
    if (kind == 23) {
        click(handle, place);
        return click(handle, place);
    }
    const QScopedValueRollback dragging(m_isDragging, true);
    drag(handle, place, corner, any(QList{Qt::AltModifier, Qt::NoModifier}));
}

} // namespace kitwright::testing
