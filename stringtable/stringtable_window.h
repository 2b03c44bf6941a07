// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "services/context.h"
#include "stringtable/string_table.h"
#include "stringtable/table_store.h"

#include <QDialog>

#include <memory>

namespace Ui {
class Form4;
}

namespace kitwright {

/// The stringtable editor: the add-on's keys, and the text of each in every language. Its Ok, Esc and its close box
/// only hide it.
class Form4 final : public QDialog {
    Q_OBJECT

public:
    /// Fills the language list from the program's own file, if there is one.
    explicit Form4(Context& context, QWidget* parent = nullptr);
    ~Form4() override;

    /// A document was opened: the keys of the former one's file leave the table, and the Stringtable.csv beside
    /// `configPath` is read. Keys that stand in no file stay.
    void readTable(const std::string& configPath);

    /// Writes the ticked keys to the Stringtable.csv at `path`; what stands there already and was not read yet is
    /// taken in first. A file that cannot be read is not touched.
    void WriteStringtable(const std::string& path);

    /// What the window edits; the ticks are those of the list as of the last reading or writing.
    const StringTable& table() const { return m_table; }

private:
    void loadLanguages();
    void connectControls();
    void addKey();
    void removeKey();
    void removeAllKeys();
    void showKey(int row);
    void storeKey();
    void showText();
    void storeText();

    void takeTicks();
    void showNewKeys();
    void showLanguages();
    void showTip(int row);
    void enableEditing(bool enabled);
    QString currentText() const;

    Context& m_context;
    std::unique_ptr<Ui::Form4> m_ui;
    StringTable m_table;
    TableStore m_store;
};

} // namespace kitwright
