// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/stringtable_window.h"

#include "../wizards/window_story.h"

namespace kitwright::testing {
using namespace told;
namespace {

class StringtableWindow : public WindowStory {
protected:
    StringtableWindow()
    {
        verbs["open"] = [this](Word, Word) {
            window = std::make_unique<Form4>(fake.context);
            window->show();
        };
        verbs["read-table"] = [this](Word configPath, Word) { form().readTable(configPath); };
        verbs["writes-to"] = [this](Word path, Word text) {
            form().WriteStringtable(path);
            EXPECT_EQ(fake.codePage.decode(fake.files.files[path]), text);
        };
        verbs["tip"] = [this](Word row, Word tip) { EXPECT_EQ(entry("List1", row).toolTip(), toQt(tip)); };
        verbs["no-row"] = [this](Word name, Word) { EXPECT_EQ(control<QListWidget>(name).currentRow(), -1); };
    }

    Form4& form() { return static_cast<Form4&>(*window); }
};

PLAY_STORIES(StringtableWindow, "stringtable/window.story");

} // namespace
} // namespace kitwright::testing
