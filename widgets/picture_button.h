// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractButton>

namespace kitwright {

/// A tool-bar picture that acts as a button: a thin border frames it while it is held down, none otherwise. The
/// picture keeps its proportions and is drawn as large as the button allows.
class PictureButton final : public QAbstractButton {
    Q_OBJECT

public:
    explicit PictureButton(QWidget* parent = nullptr);

    QSize sizeHint() const override { return {32, 32}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
};

} // namespace kitwright
