// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "noise.h"

#include "editor/scintilla_control.h"
#include "texts.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>

namespace kitwright::walking {

namespace {

using Window = QPointer<QWidget>;

std::string nameOf(const QWidget* widget)
{
    if (!widget)
        return "nothing";
    const std::string name = fromQt(widget->objectName());
    return name.empty() ? widget->metaObject()->className() : name;
}

/// A control of a window that bears a name, or the window itself.
QWidget& someControl(Stage& stage, QWidget& window)
{
    const QList<QWidget*> controls = Stage::namedControls(window);
    return controls.isEmpty() ? window : *stage.chance.of(controls);
}

Steps useControl(Stage& stage, Moves& moves, QWidget& window)
{
    QWidget& control = someControl(stage, window);
    return {{"use", nameOf(&window) + '.' + nameOf(&control), [&] { moves.use(control); }}};
}

Steps clickSomehow(Stage& stage, Moves& moves, QWidget& window)
{
    QWidget& control = someControl(stage, window);
    const std::string what = nameOf(&window) + '.' + nameOf(&control);
    if (stage.chance.percent(40))
        return {{"double click", what, [&] { stage.hands.doubleClick(control, moves.place(control)); }}};
    const Qt::MouseButton button = stage.chance.percent(80) ? Qt::RightButton : Qt::MiddleButton;
    return {{"right click", what, [&, button] { stage.hands.click(control, moves.place(control), button); }}};
}

Steps turnWheel(Stage& stage, Moves& moves, QWidget& window)
{
    QWidget& control = someControl(stage, window);
    const Qt::KeyboardModifiers modifiers =
        stage.chance.percent(30) ? Qt::KeyboardModifiers(Qt::ControlModifier) : Qt::KeyboardModifiers();
    const int notches = stage.chance.between(-3, 3);
    return {{"wheel", nameOf(&window) + '.' + nameOf(&control),
             [&, notches, modifiers] { stage.hands.wheel(control, moves.place(control), notches, modifiers); }}};
}

/// Pressed, moved twice and released, with what else happens in between.
Steps drag(Stage& stage, QWidget& window)
{
    const Window control = &someControl(stage, window);
    const Qt::KeyboardModifiers modifiers =
        stage.chance.percent(20) ? Qt::KeyboardModifiers(Qt::AltModifier) : Qt::KeyboardModifiers();
    const std::string what = nameOf(&window) + '.' + nameOf(control);
    const auto anywhere = [&stage, control] {
        const QRect room = control->rect();
        return QPoint(stage.chance.between(0, room.width()), stage.chance.between(0, room.height()));
    };
    const auto move = [=, &stage] {
        if (control)
            stage.hands.move(*control, anywhere(), modifiers);
    };
    return {{"drag", what + ", pressed",
             [=, &stage] {
                 if (control)
                     stage.hands.press(*control, anywhere(), Qt::LeftButton, modifiers);
             }},
            {"drag", what + ", moved", move},
            {"drag", what + ", moved", move},
            {"drag", what + ", released",
             [=, &stage] { stage.hands.release(control, control ? anywhere() : QPoint(), modifiers); }}};
}

Steps closeWindow(Stage& stage, QWidget& window)
{
    const Window closed = &window;
    if (&window == &stage.main() || stage.chance.percent(50))
        return {{"escape", nameOf(&window), [&stage] { stage.hands.key(Qt::Key_Escape); }}};
    return {{"close box", nameOf(&window), [closed] {
                 if (closed)
                     closed->close();
             }}};
}

Steps resize(Stage& stage, QWidget& window)
{
    const Window resized = &window;
    const QSize useful = window.size().expandedTo(window.sizeHint()).boundedTo({1400, 900});
    const QSize odd[] = {{0, 0}, {1, 1}, {60, 40}, {300, 2000}, {2500, 100}, {3000, 2000}, {500, 400}, {900, 700}};
    const QSize size = stage.chance.of(odd);
    const auto to = [resized](QSize wanted) {
        return [resized, wanted] {
            if (resized)
                resized->resize(wanted);
        };
    };
    if (stage.chance.percent(20)) {
        return {{"minimise", nameOf(resized), [resized] { resized->showMinimized(); }},
                {"restore", nameOf(resized), [resized] {
                     if (resized)
                         resized->showNormal();
                 }}};
    }
    Steps steps = {{"resize", nameOf(resized) + " oddly", to(size)}};
    for (int i = stage.chance.between(0, 2); i > 0; --i)
        steps.push_back({"key", "in an odd window", [&stage] { stage.hands.key(Qt::Key_Tab); }});
    steps.push_back({"resize", nameOf(resized) + " back", to(useful)});
    return steps;
}

void compose(const QString& preedit, const QString& commit)
{
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    if (QObject* focus = QGuiApplication::focusObject())
        QApplication::sendEvent(focus, &event);
}

/// An input method puts a character together, from keys that the code page may lack, and gives it or gives it up.
Steps inputMethod(Stage& stage)
{
    const QString text = toQt(typedText(stage.chance));
    const bool givesUp = stage.chance.percent(30);
    return {{"input method", "begins", [text] { compose(text.left(1), {}); }},
            {"input method", "goes on", [text] { compose(text.left(2), {}); }},
            {"input method", "ends", [text, givesUp] { compose({}, givesUp ? QString() : text); }}};
}

/// Another program puts something on the clipboard, or drops it into the editor.
Steps fromOutside(Stage& stage)
{
    const QString text = toQt(pastedText(stage.chance));
    if (stage.chance.percent(60)) {
        return {{"clipboard", "set from outside", [text] { QGuiApplication::clipboard()->setText(text); }},
                {"key", "paste", [&stage] { stage.hands.key(Qt::Key_V, Qt::ControlModifier); }}};
    }
    return {{"drop", "into the editor", [&stage, text] {
                 if (!stage.reachableWindows().contains(&stage.main()))
                     return;
                 QMimeData data;
                 data.setText(text);
                 QWidget* viewport = stage.editor().viewport();
                 const QPoint at(stage.chance.between(0, 600), stage.chance.between(0, 400));
                 QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, {});
                 QApplication::sendEvent(viewport, &enter);
                 QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, {});
                 QApplication::sendEvent(viewport, &drop);
             }}};
}

Steps typeSomething(Stage& stage, const QWidget& window)
{
    const QString text = toQt(typedText(stage.chance));
    return {{"type", nameOf(&window), [&stage, text] { stage.hands.type(text); }}};
}

} // namespace

Steps noise(Stage& stage, Moves& moves)
{
    QWidget* window = stage.someWindow();
    if (!window)
        return {{"pause", "no window", [] {}}};
    if (window == QApplication::activePopupWidget())
        return {{"popup", nameOf(window), [&moves, window] { moves.usePopup(*window); }}};
    if (window->isMinimized())
        return {{"restore", nameOf(window), [window] { window->showNormal(); }}};
    // The desktop may end the program at any time, in a modal window, too.
    constexpr std::size_t betweenQuits = 1'000;
    if (stage.chance.below(betweenQuits) == 0)
        return {{"quit", "from outside, " + nameOf(window), [] { QCoreApplication::quit(); }}};
    const std::size_t choice = stage.chance.below(100);
    if (choice < 45)
        return useControl(stage, moves, *window);
    if (choice < 63)
        return {{"key", nameOf(window), [&moves] { moves.someKey(); }}};
    if (choice < 73)
        return typeSomething(stage, *window);
    if (choice < 79)
        return clickSomehow(stage, moves, *window);
    if (choice < 84)
        return turnWheel(stage, moves, *window);
    if (choice < 88)
        return drag(stage, *window);
    if (choice < 92)
        return closeWindow(stage, *window);
    if (choice < 94)
        return resize(stage, *window);
    if (choice < 97)
        return inputMethod(stage);
    return fromOutside(stage);
}

} // namespace kitwright::walking
