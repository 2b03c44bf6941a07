// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/vehicle_wizard.h"

#include "platform/qt_text.h"
#include "platform/shown_text.h"
#include "ui_vehicle_wizard.h"
#include "wizards/catalogue.h"
#include "wizards/window_helpers.h"
#include "wizards/wizard_commands.h"

#include <QScopedValueRollback>

namespace kitwright {

namespace {

constexpr int nodePositionRole = Qt::UserRole; ///< Position among all nodes, from 1.

} // namespace

frmvehikl::frmvehikl(Context& context, std::vector<VehicleProperty>& properties, QWidget* parent)
    : WizardDialog(parent),
      m_context(context),
      m_properties(properties),
      m_ui(std::make_unique<Ui::frmvehikl>())
{
    m_ui->setupUi(this);
    keepRoomForHelp(*m_ui->propertyHelp);
    connectControls();
}

frmvehikl::~frmvehikl() = default;

void frmvehikl::loadProperties(const KeywordTree& tree)
{
    const PropertyHelp help(loadIfThere(m_context, "/Bfdata/kitwright/vehiclehelp.dat"));
    const QSignalBlocker quiet(m_ui->vlastnosti);
    VybranyUzel = nullptr;
    m_ui->vlastnosti->clear();
    m_nodes.clear();
    m_tree = tree;
    QList<QTreeWidgetItem*> headings;
    for (const TreeNode& node : m_tree.nodes()) {
        auto* item = new QTreeWidgetItem({shownText(node.text)});
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(0, Qt::Unchecked);
        item->setData(0, nodePositionRole, static_cast<int>(m_nodes.size()) + 1);
        std::string parentText;
        if (node.parent == TreeNode::noParent) {
            headings.push_back(item);
        } else {
            const auto parent = static_cast<std::size_t>(node.parent);
            m_nodes[parent]->addChild(item);
            parentText = m_tree.nodes()[parent].text;
        }
        item->setToolTip(0, shownText(help.find(parentText, node.text)));
        m_nodes.push_back(item);
    }
    m_ui->vlastnosti->addTopLevelItems(headings);
    m_ui->vlastnosti->expandToDepth(0);
}

void frmvehikl::NadeklarujPole()
{
    m_properties.assign(m_nodes.size() + 1, {});
}

void frmvehikl::loadBaseClasses()
{
    for (ListEntry& entry : loadIfThere(m_context, "/Bfdata/kitwright/addvehicles.dat")) {
        m_ui->List1->addItem(shownText(entry.text));
        m_baseClasses.push_back(std::move(entry.text));
    }
}

void frmvehikl::connectControls()
{
    // A tick is a click on its node, and so is reaching a node with the keyboard.
    connect(m_ui->vlastnosti, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* node) { clickNode(node); });
    connect(m_ui->vlastnosti, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* node) { reachNode(node); });
    connect(m_ui->vlastnosti, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* node) {
        if (VehicleProperty* property = propertyOf(node))
            property->ticked = node->checkState(0) == Qt::Checked;
        if (m_tickingParent)
            return;
        if (node == m_ui->vlastnosti->currentItem())
            clickNode(node);
        else
            m_ui->vlastnosti->setCurrentItem(node);
    });
    connect(m_ui->txthodnota, &QLineEdit::textChanged, this, &frmvehikl::storeValue);
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmvehikl::browse);
    connect(m_ui->Command4, &QPushButton::clicked, this, &frmvehikl::clearAll);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmvehikl::writeAndHide);
    connect(m_ui->Command3, &QPushButton::clicked, this, &QWidget::hide);
}

void frmvehikl::reachNode(QTreeWidgetItem* node)
{
    // A node that became current as the tree took the keyboard focus is shown highlighted like any other.
    if (node && !node->isSelected())
        m_ui->vlastnosti->selectionModel()->select(m_ui->vlastnosti->currentIndex(),
                                                   QItemSelectionModel::ClearAndSelect);
    clickNode(node);
}

void frmvehikl::clickNode(QTreeWidgetItem* node)
{
    if (!node)
        return;
    VybranyUzel = node;
    QTreeWidgetItem* parent = node->parent();
    m_ui->propertyHelp->setText(node->toolTip(0));
    if (VehicleProperty* property = propertyOf(node)) {
        m_ui->txthodnota->setText(toQt(property->Value));
        if (parent)
            property->ParentCaption = fromQt(parent->text(0));
        m_ui->lblrodic->setText(toQt(property->ParentCaption));
    }
    m_ui->txthodnota->setEnabled(node->childCount() == 0);
    if (parent && parent->checkState(0) != Qt::Checked) {
        const QScopedValueRollback ticking(m_tickingParent, true);
        parent->setCheckState(0, Qt::Checked);
    }
}

void frmvehikl::storeValue(const QString& value)
{
    if (VehicleProperty* property = propertyOf(VybranyUzel))
        property->Value = fromQt(value);
}

void frmvehikl::browse()
{
    CommonDialog1.filter = "Všechny soubory|*.*";
    CommonDialog1.mayBeNew = true;
    const auto path = m_context.dialogs.openFile(CommonDialog1);
    if (!path)
        return;
    const ModelValue chosen = modelValue(m_context, *path);
    report("copying a model file", chosen.failures);
    m_ui->txthodnota->setText(toQt(chosen.value));
}

void frmvehikl::clearAll()
{
    for (VehicleProperty& property : m_properties)
        property = {.ParentCaption = {}, .Value = {}, .ticked = property.ticked};
}

void frmvehikl::writeAndHide()
{
    VehicleOrder order{.name = fromQt(m_ui->txtjmeno->text()),
                       .baseClass = chosenBase(),
                       .tree = m_tree,
                       .properties = m_properties};
    order.target = m_ui->Option1->isChecked() ? AddonTarget::NewAddon : AddonTarget::CurrentAddon;
    order.declareBase = m_ui->Check1->isChecked();
    report("writing the vehicle", writeVehicle(m_context, order));
    hide();
}

std::string frmvehikl::chosenBase() const
{
    const QList<QListWidgetItem*> chosen = m_ui->List1->selectedItems();
    return chosen.isEmpty() ? std::string()
                            : m_baseClasses[static_cast<std::size_t>(m_ui->List1->row(chosen.first()))];
}

VehicleProperty* frmvehikl::propertyOf(const QTreeWidgetItem* node)
{
    if (!node)
        return nullptr;
    const auto position = static_cast<std::size_t>(node->data(0, nodePositionRole).toInt());
    return position < m_properties.size() ? &m_properties[position] : nullptr;
}

} // namespace kitwright
