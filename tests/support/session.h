// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/running_application.h"
#include "support/scenario.h"

namespace kitwright::testing {

/// An author's session with the whole program, told in steps. A control is written as "window.name", or by its name
/// alone when it is one of the window that "in" named last, the main window at first. A property of it may follow
/// behind a colon; of a list, "entries" are all that it shows and "tip" is the tool tip of the current one. "@file" is
/// the text of that file of tests/data. Text N of the language file /numbers.lng is "text N".
class Session {
public:
    Session();

    RunningApplication app;

    /// Does the steps, and holds the program to what they look at.
    void play(const Steps& steps);

    /// Does the steps that act; what cannot be done, as what it needs is not there, is left out.
    void act(const Steps& steps);

    /// What the program shows of a control, or of the "document", its style "marks", the "file" that it is in, the
    /// "addon" that it makes and the "settings" record.
    std::string seen(const std::string& what);

private:
    using Text = const std::string&;
    using Verbs = std::map<std::string, std::function<void(Text target, Text text)>>;

    void doSteps(const Steps& steps);
    void doStep(const Step& step);
    void open(const Step& step);
    void quit(Text path);

    QObject& object(Text path);
    QWidget& widget(Text path) { return dynamic_cast<QWidget&>(object(path)); }

    void click(Text path, Text text, bool twice = false);

    std::string stored(Text path);
    std::string asked();
    void expectEnabled(Text names, bool enabled);

    bool m_onlyActs = false;
    std::string m_window = "fmrconfigedit";
    const Verbs m_acts;
    const Verbs m_looks;
};

} // namespace kitwright::testing
