// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/class_wizard.h"

#include "window_story.h"

namespace kitwright::testing {
using namespace told;
namespace {

class ClassWizardWindow : public WindowStory {
protected:
    ClassWizardWindow()
    {
        fake.state.TextTable[56] = "Zbraň";
        fake.state.TextTable[57] = "Munice";
        verbs["open"] = [this](Word name, Word) {
            window =
                std::make_unique<ClassWizard>(name == "Form3" ? ammoWizard : weaponWizard, fake.context, classes);
            EXPECT_EQ(window->objectName(), toQt(name));
            window->show();
        };
    }

    std::vector<ClassRecord> classes;
};

PLAY_STORIES(ClassWizardWindow, "wizards/class_wizard.story");

} // namespace
} // namespace kitwright::testing
