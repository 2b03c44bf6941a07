// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/dialogs.h"
#include "services/context.h"
#include "services/keyword_tree.h"
#include "wizards/class_record.h"
#include "wizards/wizard_dialog.h"

#include <memory>
#include <string>
#include <vector>

class QTreeWidgetItem;

namespace Ui {
class frmvehikl;
}

namespace kitwright {

/// The vehicle wizard: writes one vehicle class with properties and nested classes ticked in a tree. It is filled at
/// start-up by `loadProperties`, `NadeklarujPole` and `loadBaseClasses`, and keeps what was entered until the program
/// ends.
class frmvehikl final : public WizardDialog {
    Q_OBJECT

public:
    /// `properties` is the wizard's array, addressed by the positions of the tree's nodes.
    frmvehikl(Context& context, std::vector<VehicleProperty>& properties, QWidget* parent = nullptr);
    ~frmvehikl() override;

    /// Fills the property tree `vlastnosti`, tool tips included.
    void loadProperties(const KeywordTree& tree);

    /// Declares the value store: one empty element for every node of the property tree.
    void NadeklarujPole();

    /// Fills the list of base classes, if there is a file of them.
    void loadBaseClasses();

private:
    void connectControls();
    void reachNode(QTreeWidgetItem* node);
    void clickNode(QTreeWidgetItem* node);
    void storeValue(const QString& value);
    void browse();
    void clearAll();
    void writeAndHide();

    /// The base class that is highlighted, or an empty text.
    std::string chosenBase() const;

    /// The element of a node, or nullptr while the store is not declared.
    VehicleProperty* propertyOf(const QTreeWidgetItem* node);

    Context& m_context;
    std::vector<VehicleProperty>& m_properties;
    KeywordTree m_tree;
    std::vector<QTreeWidgetItem*> m_nodes;  ///< In the order of the tree's nodes.
    std::vector<std::string> m_baseClasses; ///< One for each entry of the list.
    QTreeWidgetItem* VybranyUzel = nullptr; ///< The node clicked last; the value box edits its value.
    FileDialog CommonDialog1;               ///< The window's file dialog.
    bool m_tickingParent = false;
    std::unique_ptr<Ui::frmvehikl> m_ui;
};

} // namespace kitwright
