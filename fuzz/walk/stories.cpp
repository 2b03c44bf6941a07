// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stories.h"

#include "texts.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QKeySequence>

namespace kitwright::walking {

namespace {

/// Puts stories together from what can be done by name.
class Teller {
public:
    Teller(Stage& stage, Moves& moves) : m_stage(stage), m_moves(moves) {}

    Steps takeSteps() { return std::move(m_steps); }

    void menu(const char* entry)
    {
        add("menu", entry,
            [this_ = m_moves, entry]() mutable { this_.chooseMenuEntry(QString::fromLatin1(entry)); });
    }

    void use(const char* window, const char* control)
    {
        onControl("use", window, control, [moves = m_moves](QWidget& found) mutable { moves.use(found); });
    }

    void click(const char* window, const char* control)
    {
        onControl("click", window, control,
                  [&stage = m_stage](QWidget& found) { stage.hands.click(found, found.rect().center()); });
    }

    void choose(const char* window, const char* list, bool onTick, bool twice = false)
    {
        onControl(onTick ? "tick" : "choose", window, list,
                  [moves = m_moves, onTick, twice](QWidget& found) mutable {
                      if (auto* view = qobject_cast<QAbstractItemView*>(&found))
                          moves.clickEntry(*view, onTick, twice);
                  });
    }

    void write(const char* window, const char* box, const std::string& text)
    {
        onControl("write", window, box,
                  [moves = m_moves, text](QWidget& found) mutable { moves.write(found, toQt(text)); });
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        const QString name = QKeySequence(QKeyCombination(modifiers, key)).toString();
        add("key", fromQt(name), [&stage = m_stage, key, modifiers] { stage.hands.key(key, modifiers); });
    }

    void type(const std::string& text)
    {
        add("type", text, [&stage = m_stage, text] { stage.hands.type(toQt(text)); });
    }

    void add(const char* kind, const std::string& what, std::function<void()> act)
    {
        m_steps.push_back({kind, what, std::move(act)});
    }

    Chance& chance() { return m_stage.chance; }

private:
    template <class Act>
    void onControl(const char* kind, const char* window, const char* control, Act act)
    {
        add(kind, std::string(window) + '.' + control, [&stage = m_stage, window, control, act]() mutable {
            if (QWidget* found = stage.control(window, control))
                act(*found);
            else
                stage.record.count("steps out of reach");
        });
    }

    Stage& m_stage;
    Moves m_moves;
    Steps m_steps;
};

void defineClasses(Teller& tell, const char* menu, const char* window)
{
    tell.menu(menu);
    for (int i = tell.chance().between(1, 3); i > 0; --i) {
        tell.click(window, "cmdadd");
        tell.choose(window, "List1", false);
        tell.write(window, "txtname", nameText(tell.chance()));
        tell.use(window, "Combo1");
        for (int j = tell.chance().between(0, 3); j > 0; --j) {
            tell.choose(window, "List2", true);
            tell.write(window, "txthodnota", valueText(tell.chance()));
        }
        if (tell.chance().percent(30))
            tell.click(window, "Command6");
    }
    if (tell.chance().percent(25))
        tell.click(window, tell.chance().percent(70) ? "cmddel" : "cmddelall");
    if (tell.chance().percent(25))
        tell.click(window, "Check1");
    tell.click(window, tell.chance().percent(30) ? "Option1" : "Option2");
    tell.click(window, tell.chance().percent(80) ? "Command1" : "Command2");
    tell.click(window, "Command1");
}

void weapons(Teller& tell)
{
    defineClasses(tell, "mnuwizardgun", "Form1");
}

void ammunition(Teller& tell)
{
    defineClasses(tell, "mnuammoadd", "Form3");
}

void faces(Teller& tell)
{
    constexpr const char* window = "frmfaceaddon";
    tell.menu("mnuwizardfaces");
    for (int i = tell.chance().between(1, 3); i > 0; --i) {
        tell.click(window, "Command1");
        tell.write(window, "txtnazev", nameText(tell.chance()));
        for (int j = tell.chance().between(0, 3); j > 0; --j) {
            tell.choose(window, "seznam2", true);
            tell.write(window, "Text1", valueText(tell.chance()));
            tell.click(window, "cmdopenimage");
        }
    }
    if (tell.chance().percent(25))
        tell.click(window, tell.chance().percent(70) ? "cmddel" : "cmddelall");
    tell.click(window, tell.chance().percent(30) ? "Option1" : "Option2");
    tell.click(window, tell.chance().percent(80) ? "cmdok" : "cmdstorno");
}

void vehicle(Teller& tell)
{
    constexpr const char* window = "frmvehikl";
    tell.menu("mnuwizardvehikly");
    tell.write(window, "txtjmeno", nameText(tell.chance()));
    tell.choose(window, "List1", false);
    for (int i = tell.chance().between(1, 5); i > 0; --i) {
        tell.choose(window, "vlastnosti", true);
        tell.write(window, "txthodnota", valueText(tell.chance()));
        if (tell.chance().percent(30))
            tell.click(window, "Command1");
    }
    if (tell.chance().percent(15))
        tell.click(window, "Command4");
    if (tell.chance().percent(40))
        tell.click(window, "Check1");
    tell.click(window, tell.chance().percent(30) ? "Option1" : "Option2");
    tell.click(window, tell.chance().percent(80) ? "Command2" : "Command3");
}

void strings(Teller& tell)
{
    constexpr const char* window = "Form4";
    tell.click("fmrconfigedit", "cmdstrings");
    for (int i = tell.chance().between(1, 3); i > 0; --i) {
        tell.click(window, "Command1");
        tell.write(window, "Text1", nameText(tell.chance()));
        tell.choose(window, "List1", tell.chance().percent(30));
        tell.choose(window, "List2", false);
        tell.write(window, "Text2", pastedText(tell.chance()));
    }
    if (tell.chance().percent(40))
        tell.click(window, tell.chance().percent(80) ? "Command2" : "Command3");
    tell.click(window, tell.chance().percent(60) ? "Command5" : "Command4");
}

void settings(Teller& tell)
{
    constexpr const char* window = "Form5";
    constexpr std::array boxes = {"CCPB",   "CCPT", "CCPK", "FCPB", "FCPT",   "FCPK",   "classB", "classT",
                                  "classK", "KTC",  "KTB",  "KTK",  "Check1", "Check2", "Check3"};
    if (tell.chance().percent(50))
        tell.menu("mnusetupedit");
    else
        tell.click("fmrconfigedit", "cmdsetup");
    for (int i = tell.chance().between(1, 4); i > 0; --i)
        tell.click(window, tell.chance().of(boxes));
    if (tell.chance().percent(30))
        tell.write(window, "txtcesta", nameText(tell.chance()));
    if (tell.chance().percent(50)) {
        tell.click(window, "Command2");
        tell.use("Form6", "Drive1");
        tell.choose("Form6", "Dir1", false, true);
        tell.choose("Form6", "Dir1", false, tell.chance().percent(50));
        tell.click("Form6", "Command1");
    }
    tell.click(window, "Command1");
    tell.click("fmrconfigedit", "cmdrefresh");
}

void language(Teller& tell)
{
    tell.menu("mnijazyk");
    tell.choose("Form7", "List1", false, tell.chance().percent(30));
    tell.click("Form7", "Command1");
}

void lookUp(Teller& tell)
{
    if (tell.chance().percent(30)) {
        tell.menu("mnuabout");
        tell.click("Form8", "Image1");
        tell.click("Form8", "Command1");
        return;
    }
    tell.click("fmrconfigedit", "cmdrejstrik");
    tell.write("frmrejstrik2", "txtprikaz", nameText(tell.chance()));
    tell.choose("frmrejstrik2", "List1", false);
    tell.click("frmrejstrik2", "cmdok");
}

void colour(Teller& tell)
{
    tell.click("fmrconfigedit", "cmdhelp");
    tell.click("Form9", "Picture1");
    tell.write("Form9", "txtralpha", tell.chance().percent(60) ? "50" : valueText(tell.chance()));
    tell.click("Form9", "Command1");
    tell.click("Form9", "txtvysledek");
    tell.key(Qt::Key_A, Qt::ControlModifier);
    tell.key(Qt::Key_C, Qt::ControlModifier);
    tell.click("Form9", "Command2");
    tell.click("fmrconfigedit", "configedit");
    tell.key(Qt::Key_V, Qt::ControlModifier);
}

void files(Teller& tell)
{
    constexpr std::array commands = {"cmdnew", "cmdopen", "cmdopen", "cmdsave", "cmdsave", "cmdsaveas", "Command2"};
    constexpr std::array entries = {"mnufilenew", "mnufileopen", "mnusave", "mnusaveas"};
    for (int i = tell.chance().between(1, 3); i > 0; --i) {
        if (tell.chance().percent(60))
            tell.click("fmrconfigedit", tell.chance().of(commands));
        else
            tell.menu(tell.chance().of(entries));
        tell.click("fmrconfigedit", "configedit");
        tell.type(typedText(tell.chance()));
    }
}

void edit(Teller& tell)
{
    tell.click("fmrconfigedit", "configedit");
    for (int i = tell.chance().between(2, 6); i > 0; --i) {
        tell.type(typedText(tell.chance()));
        if (tell.chance().percent(40))
            tell.key(tell.chance().percent(50) ? Qt::Key_Return : Qt::Key_Up);
        if (tell.chance().percent(30))
            tell.choose("fmrconfigedit", tell.chance().percent(50) ? "classes" : "commands", false);
    }
    if (tell.chance().percent(30))
        tell.click("fmrconfigedit", "cmdrefresh");
}

void find(Teller& tell)
{
    tell.click("fmrconfigedit", "configedit");
    tell.key(Qt::Key_F, Qt::ControlModifier);
    tell.type(typedText(tell.chance()));
    for (int i = tell.chance().between(1, 3); i > 0; --i)
        tell.key(tell.chance().percent(50) ? Qt::Key_Return : Qt::Key_F3);
    tell.key(tell.chance().percent(50) ? Qt::Key_Escape : Qt::Key_Delete);
}

/// The editor's own commands on what is selected: letter case, lines, rectangles.
void rearrange(Teller& tell)
{
    constexpr std::array keys = {Qt::Key_U, Qt::Key_U, Qt::Key_T, Qt::Key_D, Qt::Key_L, Qt::Key_X, Qt::Key_V};
    tell.click("fmrconfigedit", "configedit");
    tell.type(typedText(tell.chance()));
    for (int i = tell.chance().between(1, 4); i > 0; --i) {
        if (tell.chance().percent(20))
            tell.key(Qt::Key_A, Qt::ControlModifier);
        for (int j = tell.chance().between(0, 3); j > 0; --j)
            tell.key(tell.chance().percent(50) ? Qt::Key_Left : Qt::Key_Up,
                     tell.chance().percent(50) ? Qt::KeyboardModifiers(Qt::ShiftModifier)
                                               : Qt::AltModifier | Qt::ShiftModifier);
        tell.key(tell.chance().of(keys), tell.chance().percent(60) ? Qt::KeyboardModifiers(Qt::ControlModifier)
                                                                   : Qt::ControlModifier | Qt::ShiftModifier);
        tell.type(tell.chance().percent(30) ? typedText(tell.chance()) : "");
    }
}

void bigPaste(Teller& tell)
{
    const QString text = toQt(pastedText(tell.chance()) + pastedText(tell.chance()));
    tell.add("clipboard", "set from outside", [text] { QGuiApplication::clipboard()->setText(text); });
    tell.click("fmrconfigedit", "configedit");
    for (int i = tell.chance().between(1, 4); i > 0; --i)
        tell.key(Qt::Key_V, Qt::ControlModifier);
    tell.key(Qt::Key_Z, Qt::ControlModifier);
}

void fullDisk(Teller& tell, Stage& stage)
{
    tell.add("disk", "is full", [&stage] { stage.files.setFull(true); });
    files(tell);
    strings(tell);
    tell.add("disk", "has room again", [&stage] { stage.files.setFull(false); });
}

} // namespace

Steps story(Stage& stage, Moves& moves)
{
    constexpr std::array plain = {weapons, weapons, ammunition, ammunition, faces,     faces,
                                  vehicle, vehicle, strings,    strings,    settings,  lookUp,
                                  files,   files,   files,      edit,       edit,      edit,
                                  find,    colour,  bigPaste,   language,   rearrange, rearrange};
    const std::size_t choice = stage.chance.below(100);
    if (choice < 2)
        return leave(stage, moves);
    Teller tell(stage, moves);
    if (choice < 4)
        fullDisk(tell, stage);
    else
        stage.chance.of(plain)(tell);
    return tell.takeSteps();
}

Steps shorten(Stage& stage, Moves& moves)
{
    Teller tell(stage, moves);
    tell.click("fmrconfigedit", "configedit");
    tell.key(Qt::Key_A, Qt::ControlModifier);
    tell.key(Qt::Key_Delete);
    return tell.takeSteps();
}

Steps leave(Stage& stage, Moves& moves)
{
    Teller tell(stage, moves);
    if (tell.chance().percent(15)) {
        tell.add("quit", "from outside", [] { QCoreApplication::quit(); });
    } else if (tell.chance().percent(40)) {
        tell.menu("mnufilekonec");
    } else if (tell.chance().percent(50)) {
        tell.click("fmrconfigedit", "Command1");
    } else {
        tell.add("close box", "fmrconfigedit", [&stage] {
            if (stage.reachableWindows().contains(&stage.main()))
                stage.main().close();
        });
    }
    return tell.takeSteps();
}

} // namespace kitwright::walking
