// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/keyword_list.h"
#include "services/context.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmrejstrik2;
}

namespace kitwright {

/// The command index: the whole keyword list with a search as you type.
class frmrejstrik2 final : public QDialog {
    Q_OBJECT

public:
    /// Context and list must outlive the window.
    frmrejstrik2(Context& context, const KeywordList& keywords, QWidget* parent);
    ~frmrejstrik2() override;

    /// Fills `List1` from the keyword list and selects its first entry.
    void showKeywords();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void search(const QString& text);
    void showClass(int row);

    Context& m_context;
    const KeywordList& m_keywords;
    std::unique_ptr<Ui::frmrejstrik2> m_ui;
};

} // namespace kitwright
