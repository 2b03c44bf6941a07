// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

namespace kitwright {

/// What the wizards' windows have in common. OK writes to the document and may even start a new add-on, so Enter
/// never presses it from afar: in a box or list Enter goes on to the next control, on a button it presses that one.
/// Esc and the close box hide the window, which keeps all that was entered.
class WizardDialog : public QDialog {
    Q_OBJECT

public:
    explicit WizardDialog(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace kitwright
