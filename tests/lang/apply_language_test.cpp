// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lang/apply_language.h"

#include "lang/caption_table.h"
#include "lang/language_chooser.h"
#include "platform/qt_text.h"
#include "services/folder_chooser.h"
#include "support/fake_host.h"
#include "tools/about_window.h"
#include "tools/colour_maker.h"

#include <QMenuBar>
#include <QPushButton>
#include <gtest/gtest.h>

namespace kitwright {

namespace {

struct Language : ::testing::Test {
    testing::FakeContext fake;
    Form6 folder{fake.context};
    Form7 language{fake.context, [](const std::string&) {}};
    Form8 about;
    Form9 maker{fake.context};
    QWidget main;

    QWidget* window(std::string_view name)
    {
        for (QWidget* each : std::initializer_list<QWidget*>{&folder, &language, &about, &maker, &main}) {
            if (each->objectName() == toQt(name))
                return each;
        }
        return nullptr;
    }

    void apply(const std::string& file)
    {
        fake.files.files["/test.lng"] = file;
        ApplyLanguage(
            fake.context, [this](std::string_view name) { return window(name); }, "/test.lng");
    }

    static std::string lines(const std::string& word, int count)
    {
        std::string file;
        for (int line = 0; line < count; ++line)
            file += word + std::to_string(line) + "\r\n";
        return file;
    }

    std::string shown(std::string_view name, std::string_view control)
    {
        QWidget* in = window(name);
        const QObject* at = control.empty() ? in : in->findChild<QObject*>(toQt(control));
        return fromQt(at ? at->property(control.empty() ? "windowTitle" : "text").toString() : "none");
    }
};

} // namespace

TEST_F(Language, IsReadInItsOwnEncoding)
{
    apply("\xC8"
          "esky\r\n");
    EXPECT_EQ(shown("Form8", "Label1"), "\xC4\x8C"
                                        "esky");
    apply("\xEF\xBB\xBF\xC5\x98"
          "ada\r\n");
    EXPECT_EQ(shown("Form8", "Label1"), "\xC5\x98"
                                        "ada");
}

TEST_F(Language, KeepsTheTextsThatAFileDoesNotGive)
{
    apply(lines("first ", 77));
    apply(lines("second ", 10));
    ApplyLanguage(
        fake.context, [this](std::string_view name) { return window(name); }, "/no such file");
    EXPECT_EQ(shown("Form8", "Label1"), "second 0");
    EXPECT_EQ(shown("Form8", "Label3"), "first 71");
    EXPECT_EQ(shown("Form8", "Label2"), "The Kitwright developers");
}

TEST_F(Language, ReachesEveryListedControl)
{
    apply(lines("text ", 76));
    int checked = 0;
    for (const Caption& caption : captionTable()) {
        if (!window(caption.window))
            continue;
        ++checked;
        EXPECT_EQ(shown(caption.window, caption.control), "text " + std::to_string(caption.text))
            << caption.window << ' ' << caption.control;
    }
    EXPECT_EQ(checked, 10);
}

TEST_F(Language, FindsMenusAndTellsWindowsApart)
{
    main.setObjectName("fmrconfigedit");
    QPushButton theirs(new QDialog(&main)), ours(new QWidget(&main));
    theirs.setObjectName("Command1");
    ours.setObjectName("Command1");
    QMenu* menu = (new QMenuBar(&main))->addMenu("Soubor");
    menu->setObjectName("mnufile");
    QAction* entry = menu->addAction("Konec");
    entry->setObjectName("mnufilekonec");
    apply(lines("text ", 76));
    EXPECT_EQ(main.windowTitle(), "text 0");
    EXPECT_EQ(menu->title(), "text 1");
    EXPECT_EQ(entry->text(), "text 6");
    EXPECT_EQ(ours.text(), "text 6");
    EXPECT_EQ(theirs.text(), "");
}

} // namespace kitwright
