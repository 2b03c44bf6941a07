// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/context.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <string>

class QCheckBox;

namespace Ui {
class Form5;
}

namespace kitwright {

class ColourBox;

/// The settings dialog, modal. It shows the settings as they stood when it was created and writes every change into
/// them at once; there is no cancel. The document keeps its look until it is coloured again.
class Form5 final : public QDialog {
    Q_OBJECT

public:
    /// Has a folder chosen; its path, or empty when none was.
    using ChooseFolder = std::function<std::string()>;

    Form5(Context& context, ChooseFolder chooseFolder, QWidget* parent = nullptr);
    ~Form5() override;

private:
    void bindStyles();
    void bindOptions();
    void bind(ColourBox* box, std::uint32_t& colour);
    void bind(QCheckBox* box, bool& flag);

    Context& m_context;
    ChooseFolder m_chooseFolder;
    std::unique_ptr<Ui::Form5> m_ui;
};

} // namespace kitwright
