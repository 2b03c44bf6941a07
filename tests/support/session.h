// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/running_application.h"
#include "support/scenario.h"

namespace kitwright::testing {

/// An author's session with the whole program, told in steps. A control is written as "window.name", or by its name
/// alone when it is one of the window that "in" or "open" named last, or else of the main window. A property of it may
/// follow behind a colon; of a list, "entries" are all that it shows and "tip" is the tool tip of the current one.
/// "@/path" is the text that the disk of the session holds there, "@file" the bytes of a file of tests/data. Text N of
/// the language file /numbers.lng is "text N". What a verb is told may go on: "see List1 a Text1 b".
class Session {
public:
    Session();

    RunningApplication app;
    std::function<void()> between = [] {}; ///< Comes before each step.

    /// Does the steps, and holds the program to what they look at.
    void play(const Steps& steps) { doSteps(steps, false); }

    /// Does the steps that act; what cannot be done, as what it needs is not there, is left out.
    void act(const Steps& steps) { doSteps(steps, true); }

    /// What the program shows of a control, or of the "document", a "line 2" of it, its style "marks", the "file" that
    /// it is in, the "addon" that it makes, and of the "settings" the bytes that were others when looked at last.
    std::string seen(const std::string& what);

private:
    using Text = const std::string&;

    void doSteps(const Steps& steps, bool onlyActs);
    void doStep(const Step& step, bool onlyActs);
    void open(const Step& step, bool onlyActs);

    QObject& object(Text path);
    QWidget& widget(Text path) { return dynamic_cast<QWidget&>(object(path)); }
    void click(Text path, Text text, bool twice = false);

    std::string stored(Text path);
    std::string changedSettings();
    void expectAsked(const Cells& cells);

    std::string m_window = "fmrconfigedit"; ///< Whose controls are told by their names alone.
    std::string m_settings;                 ///< When looked at last.
    const std::map<std::string, std::function<void(Text, Text)>> m_verbs;
};

} // namespace kitwright::testing
