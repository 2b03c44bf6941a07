// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class Form8;
}

namespace kitwright {

/// The About window, modal: the program's name, its makers, what it is, and a picture. Its captions follow the
/// language; the makers' line is fixed.
class Form8 final : public QDialog {
    Q_OBJECT

public:
    explicit Form8(QWidget* parent = nullptr);
    ~Form8() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void drawPicture();

    std::unique_ptr<Ui::Form8> m_ui;
};

} // namespace kitwright
