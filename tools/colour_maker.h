// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/context.h"

#include <QDialog>

#include <memory>

namespace Ui {
class Form9;
}

namespace kitwright {

/// The colour maker: turns a picked colour and an alpha in percent into the text of a colour array. Its Ok and Esc
/// keep what it shows for the next time, the close box discards it.
class Form9 final : public QDialog {
    Q_OBJECT

public:
    explicit Form9(Context& context, QWidget* parent = nullptr);
    ~Form9() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void pickColour();
    void keepAlphaInRange();
    void makeText();

    Context& m_context;
    std::unique_ptr<Ui::Form9> m_ui;
};

} // namespace kitwright
