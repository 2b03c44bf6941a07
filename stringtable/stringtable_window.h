// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/context.h"
#include "stringtable/table_store.h"

#include <QDialog>

#include <memory>

namespace Ui {
class Form4;
}

namespace kitwright {

/// The stringtable editor, a view of the add-on's table: its keys, and the text of each in every language. Its Ok,
/// Esc and its close box only hide it.
class Form4 final : public QDialog {
    Q_OBJECT

public:
    /// Context and store must outlive the window.
    Form4(Context& context, TableStore& store, QWidget* parent = nullptr);
    ~Form4() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connectControls();
    void addKey();
    void removeKey();
    void removeAllKeys();
    void showKey(int row);
    void storeKey();
    void showText();
    void storeText();

    void tableChanged(TableChange change);
    void showTable();
    void showNewKeys();
    void showLanguages();
    void enableEditing(bool enabled);
    QString currentText() const;

    Context& m_context;
    TableStore& m_store;
    StringTable& m_table;
    std::unique_ptr<Ui::Form4> m_ui;
    QString m_textBeforeSave; ///< The current key's in the current language.
};

} // namespace kitwright
