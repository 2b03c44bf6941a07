// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "play.h"
#include "text/list_file.h"
#include "widgets/browser_tree.h"
#include "widgets/check_list.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace kitwright::badinput {

namespace {

constexpr const char* document = "addon/config.cpp";

std::string entries(std::size_t count)
{
    return count == 0 ? "no entries" : count == 1 ? "1 entry" : std::to_string(count) + " entries";
}

/// Opens all branches with the key for it and walks through them.
void explore(Program& program, QTreeView& tree)
{
    program.clickThrough(tree);
    QTest::keyClick(&tree, Qt::Key_Home);
    QTest::keyClick(&tree, Qt::Key_Asterisk);
    program.clickThrough(tree);
}

void lookIntoIndex(Program& program)
{
    program.useModal("cmdrejstrik", [&](QWidget&) {
        program.type("txtprikaz", "frmrejstrik2", "cl");
        program.clickThrough(program.control<QListWidget>("List1", "frmrejstrik2"));
    });
}

void expectInDocument(Play& play, const std::string& text)
{
    expect(play.program.text().find(text) != std::string::npos, "the document lacks " + text);
}

/// Row of the first entry of a shipped catalogue that stands for a file.
int fileRow(const Play& play, const std::string& place)
{
    int row = 0;
    for (const ListEntry& entry : listEntries(play.stage.read(place))) {
        if (entry.kind == 2)
            return row;
        ++row;
    }
    throw Fault("no property that names a file");
}

/// Adds a weapon, and leaves it to `fill` to give it properties.
void writeWeapon(Play& play, const std::function<void()>& fill)
{
    Program& program = play.program;
    program.openDocument(play.stage.path(document));
    program.use("mnuwizardgun");
    program.use("cmdadd", "Form1");
    program.clickThrough(program.control<CheckList>("List1", "Form1"));
    program.type("txtname", "Form1", "KW_Gun");
    fill();
    program.use("Option2", "Form1");
    program.use("Command1", "Form1");
    expectInDocument(play, "class CfgWeapons");
    expectInDocument(play, "class KW_Gun: ");
    program.use("cmdsave");
}

/// Ticks the property that is current and types a value for it.
void tickCurrent(Program& program, CheckList& list, std::string_view box, std::string_view window)
{
    if (list.count() == 0)
        return;
    QTest::keyClick(&list, Qt::Key_Space);
    program.type(box, window, "1");
}

void browseModel(Play& play)
{
    Program& program = play.program;
    auto& properties = program.control<CheckList>("List2", "Form1");
    properties.choose(fileRow(play, "program/Bfdata/kitwright/kitwrightweapon.dat"));
    QTest::keyClick(&properties, Qt::Key_Space);
    program.dialogs.fileToOpen = play.stage.path("elsewhere/gun.p3d");
    program.use("Command6", "Form1");
}

std::string useTree(Play& play, const char* name)
{
    Program& program = play.program;
    program.openDocument(play.stage.path(document));
    auto& tree = program.control<BrowserTree>(name);
    explore(program, tree);
    program.application().context().state.Settings.DeclareFromRoot = true;
    program.clickThrough(tree);
    lookIntoIndex(program);
    return {};
}

} // namespace

std::string useClasses(Play& play)
{
    useTree(play, "classes");
    return entries(play.program.application().mainWindow().classes().nodes().size());
}

std::string useCommands(Play& play)
{
    useTree(play, "commands");
    int count = 0;
    for (QTreeWidgetItemIterator item(&play.program.control<BrowserTree>("commands")); *item; ++item)
        ++count;
    return entries(static_cast<std::size_t>(count));
}

std::string useWeapons(Play& play)
{
    Program& program = play.program;
    auto& properties = program.control<CheckList>("List2", "Form1");
    writeWeapon(play, [&] {
        program.clickThrough(properties);
        tickCurrent(program, properties, "txthodnota", "Form1");
    });
    return entries(static_cast<std::size_t>(properties.count()));
}

std::string useBaseClasses(Play& play)
{
    Program& program = play.program;
    auto& box = program.control<QComboBox>("Combo1", "Form1");
    writeWeapon(play, [&] {
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Up})
            QTest::keyClick(&box, key);
        box.showPopup();
        QApplication::processEvents();
        box.hidePopup();
    });
    return entries(static_cast<std::size_t>(box.count()));
}

std::string useVehicles(Play& play)
{
    Program& program = play.program;
    program.openDocument(play.stage.path(document));
    program.use("mnuwizardvehikly");
    auto& tree = program.control<QTreeWidget>("vlastnosti", "frmvehikl");
    explore(program, tree);
    if (tree.currentItem()) {
        QTest::keyClick(&tree, Qt::Key_Space);
        if (program.control<QLineEdit>("txthodnota", "frmvehikl").isEnabled())
            program.type("txthodnota", "frmvehikl", "1");
    }
    program.type("txtjmeno", "frmvehikl", "KW_Tank");
    program.clickThrough(program.control<QListWidget>("List1", "frmvehikl"));
    program.use("Option2", "frmvehikl");
    program.use("Command2", "frmvehikl");
    expectInDocument(play, "class KW_Tank: ");
    program.use("cmdsave");
    std::size_t count = 0;
    for (QTreeWidgetItemIterator item(&tree); *item; ++item)
        ++count;
    return entries(count);
}

/// The properties of a new face in the document.
CheckList& newFace(Play& play)
{
    play.program.openDocument(play.stage.path(document));
    play.program.use("mnuwizardfaces");
    play.program.use("Command1", "frmfaceaddon");
    return play.program.control<CheckList>("seznam2", "frmfaceaddon");
}

std::string useFaces(Play& play)
{
    Program& program = play.program;
    CheckList& properties = newFace(play);
    program.clickThrough(properties);
    tickCurrent(program, properties, "Text1", "frmfaceaddon");
    const int count = properties.count();
    program.use("Option2", "frmfaceaddon");
    program.use("cmdok", "frmfaceaddon");
    expectInDocument(play, "class CfgFaces");
    program.use("cmdsave");
    return entries(static_cast<std::size_t>(count));
}

std::string useLanguages(Play& play)
{
    Program& program = play.program;
    program.openDocument(play.stage.path(document));
    program.use("cmdstrings");
    program.use("Command1", "Form4");
    program.type("Text1", "Form4", "KW_New");
    auto& languages = program.control<QListWidget>("List2", "Form4");
    program.clickThrough(languages);
    program.type("Text2", "Form4", "new text");
    program.use("cmdsave");
    expect(play.stage.read("addon/Stringtable.csv").find("$STRM_KW_New,") != std::string::npos,
           "a new key is not in the stringtable");
    return entries(static_cast<std::size_t>(languages.count()));
}

std::string useLanguage(Play& play)
{
    Program& program = play.program;
    program.useModal("mnijazyk", [&](QWidget&) {
        auto& names = program.control<QListWidget>("List1", "Form7");
        names.setCurrentItem(names.findItems(QStringLiteral("bad.lng"), Qt::MatchExactly).at(0));
        program.use("Command1", "Form7");
    });
    expect(program.application().context().state.Settings.LanguageFile.ends_with("/bad.lng"),
           "the language was not taken");
    for (const char* name : {"Form1", "Form2", "Form3", "Form4", "Form5", "Form6", "Form7", "Form8", "Form9",
                             "frmfaceaddon", "frmrejstrik2", "frmvehikl"}) {
        QWidget* window = program.application().window(name);
        window->show();
        QApplication::processEvents();
        window->hide();
    }
    std::size_t filled = 0;
    for (const std::string& text : program.application().context().state.TextTable)
        filled += text.empty() ? 0 : 1;
    return std::to_string(filled) + " texts";
}

std::string usePicture(Play& play)
{
    Program& program = play.program;
    CheckList& properties = newFace(play);
    properties.choose(fileRow(play, "program/Bfdata/kitwright/Kitwrightface.dat"));
    QTest::keyClick(&properties, Qt::Key_Space);
    program.dialogs.fileToOpen = play.stage.path("elsewhere/face.jpg");
    program.use("cmdopenimage", "frmfaceaddon");
    const bool shown = !program.control<QLabel>("Image1", "frmfaceaddon").pixmap(Qt::ReturnByValue).isNull();
    program.use("Option2", "frmfaceaddon");
    program.use("cmdok", "frmfaceaddon");
    program.use("cmdsave");
    expect(play.stage.read("addon/face.jpg") == play.bad, "the picture's copy differs from it");
    return shown ? "shown and copied" : "not shown, copied";
}

std::string useModel(Play& play)
{
    writeWeapon(play, [&] { browseModel(play); });
    expect(play.stage.read("addon/gun.p3d") == play.bad, "the model's copy differs from it");
    return "copied as it is";
}

} // namespace kitwright::badinput
