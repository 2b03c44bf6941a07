// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class Form2;
}

namespace kitwright {

/// The wait notice of a full pass. It never takes the keyboard.
class Form2 final : public QDialog {
    Q_OBJECT

public:
    explicit Form2(QWidget* parent);
    ~Form2() override;

    /// Shows the notice for a pass over a text of so many bytes, painted at once when the pass takes long enough to
    /// be seen; a shorter one must not flash on the screen. Events other than the author's input may run meanwhile.
    void announce(std::size_t textLength);

private:
    std::unique_ptr<Ui::Form2> m_ui;
};

} // namespace kitwright
