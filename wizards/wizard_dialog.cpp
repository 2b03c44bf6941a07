// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/wizard_dialog.h"

#include <QKeyEvent>
#include <QPushButton>

namespace kitwright {

WizardDialog::WizardDialog(QWidget* parent) : QDialog(parent)
{
    setSizeGripEnabled(true);
}

void WizardDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
        return;
    }
    if (auto* button = qobject_cast<QPushButton*>(focusWidget()))
        button->click();
    else
        focusNextChild();
}

} // namespace kitwright
