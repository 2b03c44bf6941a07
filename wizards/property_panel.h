// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/dialogs.h"
#include "services/context.h"
#include "text/list_file.h"
#include "widgets/check_list.h"
#include "wizards/class_record.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <functional>
#include <string>
#include <vector>

namespace kitwright {

/// The controls of a window that show the properties of a class or face.
struct PropertyControls {
    CheckList& properties; ///< The entries of the catalogue; the ticks are those of the record.
    QLabel& help;          ///< What the highlighted property means.
    QLineEdit& value;      ///< Of the highlighted property.
    QPushButton& browse;   ///< Pressed, it lets the author choose a file as the value.
};

/// Lets the author tick and fill in the properties of one record at a time, the one that is highlighted in the
/// window; ticks and values go into the record at once.
class PropertyPanel final : public QObject {
    Q_OBJECT

public:
    /// The settings of the highlighted record, one for each entry of the catalogue; nullptr when none is highlighted:
    /// nothing is stored then.
    using Settings = std::function<std::vector<PropertySetting>*()>;

    /// The controls have to outlive the panel. `browseFilter` is that of the file dialog.
    PropertyPanel(const PropertyControls& controls, Context& context, const char* browseFilter, Settings settings);

    /// Fills the list with a catalogue below the program folder, if it is there. Called once.
    void loadCatalogue(const char* file);

    const std::vector<ListEntry>& catalogue() const { return m_catalogue; }

    /// Enables the list and the value box. The browse button follows the property that is chosen.
    void setEnabled(bool enabled);

    /// Shows the ticks of the highlighted record. The value box changes when a property is chosen.
    void showTicks();

Q_SIGNALS:
    /// A property was chosen, and its value is in the value box.
    void propertyShown();

    /// The author has chosen a file, whose path is in the value box.
    void fileChosen(const std::string& path);

private:
    void showProperty(int row);
    void storeValue(const QString& value);
    void browse();

    /// The highlighted record's setting of the highlighted property, or nullptr.
    PropertySetting* currentSetting() const;

    PropertyControls m_controls;
    Context& m_context;
    Settings m_settings;
    std::vector<ListEntry> m_catalogue;
    FileDialog CommonDialog1; ///< The window's file dialog.
};

} // namespace kitwright
