// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/context.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <string>

namespace Ui {
class Form7;
}

namespace kitwright {

/// The language chooser, modal: lists the language files, applies the chosen one and hides. Ok is ignored while
/// nothing is chosen; the close box changes nothing.
class Form7 final : public QDialog {
    Q_OBJECT

public:
    /// `applyLanguage` gets the full path of the language file, which the settings hold by then.
    Form7(Context& context, std::function<void(const std::string&)> applyLanguage, QWidget* parent = nullptr);
    ~Form7() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::string folder() const;
    void listLanguages();
    void confirm();

    Context& m_context;
    std::function<void(const std::string&)> m_applyLanguage;
    std::unique_ptr<Ui::Form7> m_ui;
};

} // namespace kitwright
