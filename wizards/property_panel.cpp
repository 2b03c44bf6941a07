// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/property_panel.h"

#include "platform/qt_text.h"
#include "platform/shown_text.h"
#include "wizards/catalogue.h"
#include "wizards/window_helpers.h"

namespace kitwright {

PropertyPanel::PropertyPanel(const PropertyControls& controls, Context& context, const char* browseFilter,
                             Settings settings)
    : m_controls(controls),
      m_context(context),
      m_settings(std::move(settings))
{
    CommonDialog1.filter = browseFilter;
    keepRoomForHelp(m_controls.help);
    connect(&m_controls.properties, &CheckList::entryClicked, this, &PropertyPanel::showProperty);
    connect(&m_controls.value, &QLineEdit::textChanged, this, &PropertyPanel::storeValue);
    connect(&m_controls.browse, &QPushButton::clicked, this, &PropertyPanel::browse);
}

void PropertyPanel::loadCatalogue(const char* file)
{
    m_catalogue = loadIfThere(m_context, file);
    for (const ListEntry& property : m_catalogue)
        m_controls.properties.addEntry(shownText(property.text), shownText(property.help));
}

void PropertyPanel::setEnabled(bool enabled)
{
    m_controls.properties.setEnabled(enabled);
    m_controls.value.setEnabled(enabled);
}

void PropertyPanel::showTicks()
{
    if (const std::vector<PropertySetting>* settings = m_settings())
        m_controls.properties.setTicks(usedProperties(*settings));
}

void PropertyPanel::showProperty(int row)
{
    const ListEntry& property = m_catalogue[static_cast<std::size_t>(row)];
    m_controls.browse.setEnabled(property.kind == fileKind);
    m_controls.help.setText(shownText(property.help));
    if (PropertySetting* setting = currentSetting()) {
        setting->Used = m_controls.properties.isTicked(row);
        m_controls.value.setText(toQt(setting->Value));
    }
    Q_EMIT propertyShown();
}

void PropertyPanel::storeValue(const QString& value)
{
    if (PropertySetting* setting = currentSetting())
        setting->Value = fromQt(value);
}

void PropertyPanel::browse()
{
    const auto path = m_context.dialogs.openFile(CommonDialog1);
    if (!path)
        return;
    m_controls.value.setText(toQt(*path));
    Q_EMIT fileChosen(*path);
}

PropertySetting* PropertyPanel::currentSetting() const
{
    std::vector<PropertySetting>* settings = m_settings();
    return settings ? recordAt(*settings, m_controls.properties.currentRow()) : nullptr;
}

} // namespace kitwright
