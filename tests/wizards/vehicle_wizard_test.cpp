// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/vehicle_wizard.h"

#include "window_story.h"

#include <QTreeWidget>

namespace kitwright::testing {
using namespace told;
namespace {

class VehicleWizardWindow : public WindowStory {
protected:
    VehicleWizardWindow()
    {
        verbs["open"] = [this](Word, Word lines) { open(lines); };
        verbs["node"] = [this](Word caption, Word) { tree().setCurrentItem(&node(caption)); };
        verbs["click-node"] = [this](Word caption, Word) { Q_EMIT tree().itemClicked(&node(caption), 0); };
        verbs["tick-node"] = [this](Word caption, Word) { node(caption).setCheckState(0, Qt::Checked); };
        verbs["clear-node"] = [this](Word caption, Word) { node(caption).setCheckState(0, Qt::Unchecked); };
        verbs["ticked"] = [this](Word caption, Word) { EXPECT_TRUE(node(caption).checkState(0)) << caption; };
        verbs["not-ticked"] = [this](Word caption, Word) { EXPECT_FALSE(node(caption).checkState(0)) << caption; };
        verbs["tip"] = [this](Word caption, Word tip) { EXPECT_EQ(node(caption).toolTip(0), toQt(tip)); };
    }

    /// Without lines it stays as it is when there is no catalogue.
    void open(const std::string& lines)
    {
        auto wizard = std::make_unique<frmvehikl>(fake.context, properties);
        if (!lines.empty()) {
            KeywordTree catalogue;
            addTreeLines(lines, catalogue);
            wizard->loadProperties(catalogue);
            wizard->NadeklarujPole();
            wizard->loadBaseClasses();
        }
        wizard->show();
        window = std::move(wizard);
    }

    QTreeWidget& tree() { return control<QTreeWidget>("vlastnosti"); }

    QTreeWidgetItem& node(const std::string& caption)
    {
        return *tree().findItems(toQt(caption), Qt::MatchExactly | Qt::MatchRecursive).at(0);
    }

    std::vector<VehicleProperty> properties;
};

PLAY_STORIES(VehicleWizardWindow, "wizards/vehicle_wizard.story");

} // namespace
} // namespace kitwright::testing
