// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/plain_labels.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>

namespace kitwright {

PlainLabels::PlainLabels()
{
    QCoreApplication::instance()->installEventFilter(this);
}

/// A label is polished before its text is laid out for the first time.
bool PlainLabels::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Polish) {
        if (auto* label = qobject_cast<QLabel*>(object))
            label->setTextFormat(Qt::PlainText);
    }
    return QObject::eventFilter(object, event);
}

} // namespace kitwright
