// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "coverage.h"

#include "platform/qt_text.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QMenu>

namespace kitwright::walking {

namespace {

bool isGiven(const QString& name)
{
    return !name.isEmpty() && !name.startsWith(QLatin1String("qt_")) && !name.startsWith(QLatin1String("_q_"));
}

std::string nameIn(const QWidget& window, const QString& control)
{
    return fromQt(window.objectName() + QLatin1Char('.') + control);
}

/// The window that a control belongs to; a menu is a part of the one that it hangs in.
const QWidget& windowOf(const QWidget& widget)
{
    const QWidget* window = widget.window();
    while (qobject_cast<const QMenu*>(window) && window->parentWidget())
        window = window->parentWidget()->window();
    return *window;
}

} // namespace

Coverage::Coverage()
{
    qApp->installEventFilter(this);
}

void Coverage::learnEntries(QWidget& top)
{
    for (QAction* entry : top.findChildren<QAction*>()) {
        if (!isGiven(entry->objectName()) || entry->isSeparator())
            continue;
        const std::string name = nameIn(top, entry->objectName());
        m_known.insert(name);
        const auto touched = [this, name] { m_touched.insert(name); };
        connect(entry, &QAction::triggered, this, touched);
        if (entry->menu())
            connect(entry->menu(), &QMenu::aboutToShow, this, touched);
    }
}

void Coverage::learnControls(QWidget& top)
{
    for (const QWidget* widget : top.findChildren<QWidget*>()) {
        if (isGiven(widget->objectName()) && !widget->isWindow())
            m_known.insert(nameIn(windowOf(*widget), widget->objectName()));
    }
}

std::set<std::string> Coverage::untouched() const
{
    std::set<std::string> names;
    for (const std::string& name : m_known) {
        if (!m_touched.contains(name))
            names.insert(m_disabled.contains(name) ? name + " (disabled only)" : name);
    }
    return names;
}

bool Coverage::eventFilter(QObject* watched, QEvent* event)
{
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (!widget)
        return false;
    if (event->type() == QEvent::Show && widget->isWindow() && isGiven(widget->objectName()))
        ++m_windows[fromQt(widget->objectName())];
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress)
        touch(*widget);
    return false;
}

void Coverage::touch(const QWidget& widget)
{
    const QWidget* named = &widget;
    while (!isGiven(named->objectName()) && !named->isWindow() && named->parentWidget())
        named = named->parentWidget();
    auto& names = widget.isEnabled() ? m_touched : m_disabled;
    names.insert(nameIn(windowOf(*named), named->objectName()));
}

} // namespace kitwright::walking
