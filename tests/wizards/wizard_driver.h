// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/check_list.h"
#include "platform/qt_text.h"
#include "support/fake_host.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

namespace kitwright::testing {

/// The document of the examples: saved, with an add-on named "MyAddon".
inline const std::string openDocument =
    "class CfgPatches\r\n{\r\n  class MyAddon\r\n  {\r\n     units[]={};\r\n     weapons[]={};\r\n   };\r\n};\r\n";

/// A wizard's surroundings, with the open document, and its window's controls by name.
class WizardTest : public ::testing::Test {
protected:
    WizardTest()
    {
        fake.host.editor.loadText(openDocument);
        fake.state.CurrentFile = R"(D:\addons\MyAddon\config.cpp)";
        fake.state.PatchClassName = "MyAddon";
        fake.state.TextTable[56] = "Zbraň";
        fake.state.TextTable[57] = "Munice";
        fake.state.TextTable[58] = "Obličej";
        fake.state.TextTable[59] = "Name?";
        fake.state.TextTable[74] = "Copy?";
    }

    void putData(const std::string& name, const std::string& bytes)
    {
        fake.files.files["/program/Bfdata/kitwright/" + name] = bytes;
    }

    template <class Widget = QPushButton>
    Widget& control(const char* name)
    {
        auto* found = window->findChild<Widget*>(QString::fromLatin1(name));
        if (!found)
            throw std::logic_error(std::string("no control ") + name);
        return *found;
    }

    void click(const char* button) { control(button).click(); }
    CheckList& list(const char* name) { return control<CheckList>(name); }

    void type(const char* box, const char* text)
    {
        control<QLineEdit>(box).clear();
        control<QLineEdit>(box).insert(QString::fromUtf8(text));
    }

    std::string typed(const char* box) { return fromQt(control<QLineEdit>(box).text()); }

    /// Ticks an entry as a click on its tick box does.
    void tick(const char* name, int row, bool ticked = true)
    {
        list(name).item(row)->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
    }

    std::string entries(const char* name)
    {
        std::string texts;
        for (int row = 0; row < list(name).count(); ++row)
            texts += fromQt(list(name).item(row)->text()) + (list(name).isTicked(row) ? "+|" : "|");
        return texts;
    }

    /// The names of those controls that are enabled.
    std::string enabled(std::initializer_list<const char*> names)
    {
        std::string result;
        for (const char* name : names) {
            if (control<QWidget>(name).isEnabled())
                result += std::string(name) + ' ';
        }
        return result;
    }

    std::string document() { return std::string(fake.host.editor.text()); }

    FakeContext fake;
    QWidget* window = nullptr;
};

} // namespace kitwright::testing
