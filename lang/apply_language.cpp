// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lang/apply_language.h"

#include "lang/caption_table.h"
#include "lang/language_file.h"
#include "platform/qt_text.h"
#include "platform/report.h"
#include "platform/shown_text.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>

namespace kitwright {

namespace {

Q_LOGGING_CATEGORY(lcLanguage, "kitwright.lang")

/// The control of that name in a window. Other windows may be children of this one; what is inside them bears the
/// same names and is none of its controls. A menu counts as a control.
QObject* controlOf(const QObject& window, const QString& name)
{
    for (QObject* child : window.children()) {
        const auto* widget = qobject_cast<QWidget*>(child);
        if (widget && widget->isWindow() && !qobject_cast<QMenu*>(child))
            continue;
        if (child->objectName() == name)
            return child;
        if (QObject* found = controlOf(*child, name))
            return found;
    }
    return nullptr;
}

/// Shows a text as the caption of a label, button, frame, menu or menu entry; false for anything else.
bool setCaption(QObject* control, const QString& text)
{
    if (auto* label = qobject_cast<QLabel*>(control))
        label->setText(text);
    else if (auto* button = qobject_cast<QAbstractButton*>(control))
        button->setText(text);
    else if (auto* frame = qobject_cast<QGroupBox*>(control))
        frame->setTitle(text);
    else if (auto* menu = qobject_cast<QMenu*>(control))
        menu->setTitle(text);
    else if (auto* entry = qobject_cast<QAction*>(control))
        entry->setText(text);
    else
        return false;
    return true;
}

bool showCaption(QWidget& window, const Caption& caption, const QString& text)
{
    if (!caption.control.empty())
        return setCaption(controlOf(window, toQt(caption.control)), text);
    window.setWindowTitle(text);
    return true;
}

void readLanguage(Context& context, const std::string& path)
{
    const Outcome<std::string> fileText = context.texts.readMarked(path);
    if (!fileText) {
        report(lcLanguage(), "reading the language file", fileText.reason());
        return;
    }
    UiTexts texts = context.state.TextTable;
    readTexts(*fileText, texts);
    context.state.TextTable = std::move(texts);
}

} // namespace

void showCaptions(QWidget& window, const Context& context)
{
    const std::string name = fromQt(window.objectName());
    for (const Caption& caption : captionTable()) {
        if (caption.window == name && !showCaption(window, caption, shownText(context.text(caption.text))))
            report(lcLanguage(), "setting captions", name + '.' + std::string(caption.control) + " is missing");
    }
}

void ApplyLanguage(Context& context, const std::string& path, std::span<QWidget* const> windows)
{
    readLanguage(context, path);
    for (QWidget* window : windows)
        showCaptions(*window, context);
}

} // namespace kitwright
