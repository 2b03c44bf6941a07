// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/running_application.h"
#include "support/scenario.h"
#include "support/style_marks.h"
#include "support/typing.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QDir>
#include <gtest/gtest.h>

namespace kitwright::testing {

namespace {

/// Plays a session with the program, step by step from a file of tests/data/sessions. A control is written as
/// "window.name", one of the main window by its name alone; a property of it follows after a colon.
class Session : public ::testing::TestWithParam<std::string> {
protected:
    Session()
    {
        for (int number = 0; number < 76; ++number)
            app.file("/numbers.lng") += "text " + std::to_string(number) + "\r\n";
    }

    /// Plays until the end of the file, or until what a modal window gets.
    void play()
    {
        while (m_next < m_lines.size()) {
            Cells step = m_lines[m_next++];
            if (step[0] == "end")
                return;
            SCOPED_TRACE("step " + std::to_string(m_next) + ' ' + ::testing::PrintToString(step));
            step.resize(3);
            m_verbs.at(step[0])(step[1], step[2]);
        }
    }

    std::vector<Cells> m_lines = scenarioLines("sessions/" + GetParam());

private:
    using Text = const std::string&;

    QObject& object(Text path)
    {
        const std::string name = path.substr(0, path.find(':'));
        const std::size_t dot = name.find('.');
        if (dot != std::string::npos)
            return app.control<QObject>(name.substr(dot + 1), name.substr(0, dot));
        QWidget* window = app.program().window(name);
        return window ? *window : app.control<QObject>(name);
    }

    QWidget& widget(Text path) { return dynamic_cast<QWidget&>(object(path)); }

    /// The property that a path names, or the one that says most of the control.
    QByteArray propertyOf(Text path)
    {
        const std::size_t colon = path.find(':');
        if (colon != std::string::npos)
            return QByteArray::fromStdString(path.substr(colon + 1));
        for (const char* name : {"currentText", "title", "text"}) {
            if (object(path).property(name).isValid())
                return name;
        }
        return "windowTitle";
    }

    std::string shown(Text path)
    {
        const auto* view = qobject_cast<QAbstractItemView*>(&object(path));
        if (view && path.find(':') == std::string::npos)
            return fromQt(view->currentIndex().data().toString());
        return fromQt(object(path).property(propertyOf(path)).toString());
    }

    std::string seen(Text what)
    {
        if (what == "document")
            return app.text();
        if (what == "marks")
            return marked(app.box(), 0, app.state().Settings);
        if (what == "file")
            return app.state().CurrentFile;
        if (what == "addon")
            return app.state().PatchClassName;
        return shown(what);
    }

    /// The first entry of a list or tree with that text.
    static QModelIndex entry(const QAbstractItemView& view, Text text)
    {
        const QModelIndex first = view.model()->index(0, 0);
        const auto found = view.model()->match(first, Qt::DisplayRole, toQt(text), 1,
                                               Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
        EXPECT_FALSE(found.isEmpty()) << text;
        return found.value(0);
    }

    void click(Text path, Text text, bool twice)
    {
        auto* view = qobject_cast<QAbstractItemView*>(&object(path));
        if (auto* action = qobject_cast<QAction*>(&object(path)))
            return action->trigger();
        if (!view)
            return widget(path).isVisible() ? QTest::mouseClick(&widget(path), Qt::LeftButton)
                                            : dynamic_cast<QAbstractButton&>(widget(path)).click();
        const QModelIndex index = entry(*view, text);
        view->scrollTo(index);
        const QPoint point = view->visualRect(index).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, point);
        if (twice)
            QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, point);
    }

    void answer(Text dialog, Text answer)
    {
        const auto chosen = answer == "cancel" ? std::nullopt : std::optional(answer);
        if (dialog == "open")
            app.dialogs.openAnswers = {chosen};
        else if (dialog == "save")
            app.dialogs.saveAnswers = {chosen};
        else if (dialog == "text")
            app.dialogs.textAnswers.push_back(answer);
        else if (dialog == "colour")
            app.dialogs.colourAnswers.push_back(QColor(toQt(answer)).rgb() & 0xFFFFFF);
        else
            app.dialogs.yesNoAnswers = {answer == "yes"};
    }

    void press(Text path, Text keys)
    {
        const QKeyCombination key = QKeySequence(toQt(keys))[0];
        QTest::keyClick(&widget(path), key.key(), key.keyboardModifiers());
    }

    RunningApplication app;
    std::size_t m_next = 0;
    const std::map<std::string, std::function<void(Text, Text)>> m_verbs = {
        {"start", [this](Text language, Text) { app.startWith(language); }},
        {"put", [this](Text path, Text bytes) { app.file(path) = bytes; }},
        {"lock", [this](Text path, Text) { app.files.unwritable.insert(path); }},
        {"remove", [this](Text path, Text) { app.files.files.erase(path); }},
        {"answer", [this](Text dialog, Text text) { answer(dialog, text); }},
        {"load", [this](Text text, Text) { loadMarked(app.box(), text); }},
        {"click", [this](Text path, Text text) { click(path, text, false); }},
        {"doubleclick", [this](Text path, Text text) { click(path, text, true); }},
        {"type", [this](Text path, Text text) { typeKeys(widget(path), text); }},
        {"press", [this](Text path, Text keys) { press(path, keys); }},
        {"show", [this](Text window, Text) { widget(window).show(); }},
        {"activate",
         [this](Text path, Text) {
             QWidget& window = widget(path);
             window.activateWindow();
             EXPECT_TRUE(QTest::qWaitFor([&] { return window.isActiveWindow(); }));
         }},
        {"close", [this](Text window, Text) { widget(window).close(); }},
        {"set", [this](Text path, Text text) { object(path).setProperty(propertyOf(path), toQt(text)); }},
        {"tick",
         [this](Text path, Text text) {
             auto& view = dynamic_cast<QAbstractItemView&>(object(path));
             view.model()->setData(entry(view, text), Qt::Checked, Qt::CheckStateRole);
         }},
        {"open", // Clicks what opens a modal window; the steps up to "end" are for that window.
         [this](Text path, Text window) {
             const auto inside = [&](QWidget& modal) {
                 EXPECT_EQ(&modal, &widget(window));
                 play();
             };
             EXPECT_TRUE(RunningApplication::withModal([&] { click(path, {}, false); }, inside));
         }},
        {"see", [this](Text what, Text value) { EXPECT_EQ(seen(what), value); }},
        {"missing", [this](Text path, Text) { EXPECT_FALSE(app.files.fileExists(path)); }},
        {"stored",
         [this](Text path, Text bytes) {
             const auto stored = app.files.readBytes(path);
             EXPECT_TRUE(stored && *stored == bytes) << (stored ? *stored : stored.reason());
         }},
        {"expected", [this](Text file, Text) { EXPECT_EQ(app.text(), scenarioText(file)); }},
        {"asked", // What the program asked, told and started since this was looked at last.
         [this](Text all, Text) {
             EXPECT_EQ(std::exchange(app.dialogs.log, {}) + std::exchange(app.launcher.log, {}), all);
         }},
    };
};

std::vector<std::string> sessions()
{
    std::vector<std::string> names;
    for (const QString& name : QDir(QStringLiteral(KITWRIGHT_TOP "/tests/data/sessions")).entryList(QDir::Files))
        names.push_back(fromQt(name));
    return names;
}

INSTANTIATE_TEST_SUITE_P(Author, Session, ::testing::ValuesIn(sessions()),
                         [](const auto& session) { return session.param.substr(0, session.param.find('.')); });

TEST_P(Session, GoesAsWritten)
{
    play();
}

} // namespace

} // namespace kitwright::testing
