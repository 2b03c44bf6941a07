// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/check_list.h"
#include "platform/qt_text.h"
#include "story.h"
#include "support/fake_host.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

#include <memory>
#include <stdexcept>

namespace kitwright::testing {

using namespace told;

/// Stories of what an author does in one window, and of what the window, the document and the disk show then.
class WindowStory : public ::testing::TestWithParam<Story> {
protected:
    template <class Widget = QWidget>
    Widget& control(const std::string& name)
    {
        auto* found = window ? window->findChild<Widget*>(toQt(name)) : nullptr;
        if (!found)
            throw std::logic_error("no control " + name);
        return *found;
    }

    QListWidgetItem& entry(const std::string& list, const std::string& row)
    {
        return *control<QListWidget>(list).item(std::stoi(row));
    }

    void type(const std::string& box, const std::string& text)
    {
        if (auto* many = qobject_cast<QPlainTextEdit*>(&control<>(box)))
            return many->setPlainText(toQt(text));
        control<QLineEdit>(box).clear();
        control<QLineEdit>(box).insert(toQt(text));
    }

    /// Chooses as the keyboard does: an entry that the box shows already is chosen all the same.
    void choose(const std::string& name, const std::string& text)
    {
        auto& box = control<QComboBox>(name);
        box.setCurrentText(toQt(text));
        Q_EMIT box.activated(box.currentIndex());
    }

    /// Presses an entry of a list with the mouse.
    void press(const std::string& name, const std::string& row)
    {
        auto& list = control<QListWidget>(name);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(&entry(name, row)).center());
    }

    /// What a control shows; of a list "entry|" for every entry, "entry+|" where it is ticked.
    std::string shown(const std::string& name)
    {
        QWidget& widget = control<>(name);
        if (auto* box = qobject_cast<QPlainTextEdit*>(&widget))
            return fromQt(box->toPlainText());
        if (auto* box = qobject_cast<QComboBox*>(&widget))
            return fromQt(box->currentText());
        std::string entries;
        if (auto* list = qobject_cast<QListWidget*>(&widget)) {
            for (int row = 0; row < list->count(); ++row)
                entries += fromQt(list->item(row)->text()) + (list->item(row)->checkState() ? "+|" : "|");
            return entries;
        }
        return fromQt(widget.property("text").toString());
    }

    void expectEnabled(const std::string& first, std::string others, bool enabled)
    {
        for (std::string name = first; !name.empty(); name = takeWord(others))
            EXPECT_EQ(control<>(name).isEnabled(), enabled) << name;
    }

    void pressKey(const std::string& key, const std::string& box)
    {
        window->activateWindow();
        control<>(box).setFocus();
        QTest::keyClick(&control<>(box), QKeySequence::fromString(toQt(key))[0].key());
    }

    using Word = const std::string&;

    FakeContext fake;
    std::unique_ptr<QWidget> window;
    Verbs verbs{
        {"click", [this](Word name, Word) { control<QAbstractButton>(name).click(); }},
        {"type", [this](Word name, Word text) { type(name, text); }},
        {"keys", [this](Word name, Word text) { QTest::keyClicks(&control<>(name), toQt(text)); }},
        {"press-key", [this](Word key, Word box) { pressKey(key, box); }},
        {"choose", [this](Word name, Word text) { choose(name, text); }},
        {"press", [this](Word name, Word row) { press(name, row); }},
        {"row", [this](Word name, Word row) { control<QListWidget>(name).setCurrentRow(std::stoi(row)); }},
        {"tick", [this](Word name, Word row) { entry(name, row).setCheckState(Qt::Checked); }},
        {"clear", [this](Word name, Word row) { entry(name, row).setCheckState(Qt::Unchecked); }},
        {"show", [this](Word, Word) { window->show(); }},
        {"close", [this](Word, Word) { window->close(); }},
        {"undo", [this](Word, Word) { fake.host.editor.undo(); }},

        {"shows", [this](Word name, Word text) { EXPECT_EQ(shown(name), text); }},
        {"enabled", [this](Word first, Word others) { expectEnabled(first, others, true); }},
        {"disabled", [this](Word first, Word others) { expectEnabled(first, others, false); }},
        {"focus", [this](Word name, Word) { EXPECT_EQ(window->focusWidget(), &control<>(name)); }},
        {"hidden", [this](Word, Word) { EXPECT_FALSE(window->isVisible()); }},
        {"visible", [this](Word, Word) { EXPECT_TRUE(window->isVisible()); }},
        {"document", [this](Word, Word text) { EXPECT_EQ(fake.host.editor.text(), text); }},
        {"path-is", [this](Word path, Word) { EXPECT_EQ(fake.state.CurrentFile, path); }},
        {"saves", [this](Word count, Word) { EXPECT_EQ(fake.host.saves, std::stoi(count)); }},
        {"colourings", [this](Word count, Word) { EXPECT_EQ(fake.host.colourings, std::stoi(count)); }},
        {"undo-steps", [this](Word count, Word) { EXPECT_EQ(fake.host.editor.undoSteps(), std::stoi(count)); }},
        {"writes", [this](Word count, Word) { EXPECT_EQ(fake.files.writes, std::stoi(count)); }},
        {"copied", [this](Word from, Word to) { EXPECT_EQ(fake.files.files[to], fake.files.files.at(from)); }},
        {"names-asked", [this](Word count, Word) { EXPECT_EQ(fake.dialogs.prompts.size(), std::stoul(count)); }},
        {"questions", [this](Word count, Word) { EXPECT_EQ(fake.dialogs.questions.size(), std::stoul(count)); }},
        {"filter", [this](Word, Word text) { EXPECT_EQ(fake.dialogs.openAsked.at(0).filter, text); }},

        {"load", [this](Word, Word text) { fake.host.editor.loadText(text); }},
        {"path", [this](Word path, Word) { fake.state.CurrentFile = path; }},
        {"addon", [this](Word name, Word) { fake.state.PatchClassName = name; }},
        {"class-tree", [this](Word, Word text) { addTreeLines(text, fake.host.classTree); }},
        {"file", [this](Word path, Word text) { fake.files.files[path] = fake.codePage.encode(text); }},
        {"no-files", [this](Word, Word) { fake.files.files.clear(); }},
        {"unwritable", [this](Word path, Word) { fake.files.unwritable.insert(path); }},
        {"saving-fails", [this](Word, Word) { fake.host.saveWorks = false; }},
        {"will-save-as", [this](Word path, Word) { fake.host.savePaths.push_back(path); }},
        {"will-pick", [this](Word, Word path) { fake.dialogs.openAnswers.emplace_back(path); }},
        {"will-cancel", [this](Word, Word) { fake.dialogs.openAnswers.emplace_back(); }},
        {"will-answer", [this](Word answer, Word) { fake.dialogs.yesNoAnswers.push_back(answer == "yes"); }},
        {"will-name", [this](Word name, Word) { fake.dialogs.textAnswers.push_back(name); }},
    };
};

} // namespace kitwright::testing
