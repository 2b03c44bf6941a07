// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/session.h"

#include "support/style_marks.h"
#include "support/typing.h"
#include "text/windows_1250.h"

#include <QAction>
#include <QComboBox>
#include <QHelpEvent>
#include <QToolTip>
#include <QTreeView>
#include <QWindow>
#include <gtest/gtest.h>

#include <sstream>

namespace kitwright::testing {

namespace {

void require(bool holds, const std::string& what)
{
    if (!holds)
        throw std::runtime_error(what);
}

/// The first entry of a list or tree with that text.
QModelIndex entry(const QAbstractItemView& view, const std::string& text)
{
    const QModelIndex first = view.model()->index(0, 0);
    const auto found = view.model()->match(first, Qt::DisplayRole, toQt(text), 1,
                                           Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
    require(!found.isEmpty(), "no entry " + text);
    return found[0];
}

/// The entries that a list or an open branch of a tree shows, "+" behind what is ticked.
QStringList entries(const QAbstractItemView& view, const QModelIndex& branch = {})
{
    QStringList all;
    for (int row = 0; row < view.model()->rowCount(branch); ++row) {
        const QModelIndex index = view.model()->index(row, 0, branch);
        all += index.data().toString() + (index.data(Qt::CheckStateRole).toInt() == Qt::Checked ? "+" : "");
        const auto* tree = qobject_cast<const QTreeView*>(&view);
        if (tree && tree->isExpanded(index))
            all += entries(view, index);
    }
    return all;
}

/// What a path names behind its colon.
std::string behindColon(const std::string& path)
{
    const std::size_t colon = path.find(':');
    return colon == std::string::npos ? "" : path.substr(colon + 1);
}

/// The property that a path names, or the one that says most of the control.
QByteArray propertyOf(const QObject& object, const std::string& path)
{
    if (const std::string named = behindColon(path); !named.empty())
        return QByteArray::fromStdString(named);
    for (const char* name : {"currentText", "title", "text", "plainText"}) {
        if (object.property(name).isValid())
            return name;
    }
    return "windowTitle";
}

/// The entries of a menu, "-" in front of a line.
QStringList entries(const QWidget& menu)
{
    QStringList all;
    for (const QAction* action : menu.actions())
        all += (action->isSeparator() ? "-" : "") + action->objectName();
    return all;
}

/// The tool tip that the mouse finds on the current entry.
QString tip(const QAbstractItemView& view)
{
    const QPoint place = view.visualRect(view.currentIndex()).center();
    QToolTip::showText({}, QStringLiteral("none"));
    QHelpEvent asks(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(view.viewport(), &asks);
    return QToolTip::text();
}

/// A property as text; of a picture, how many times as wide as high it is.
QString shown(const QObject& object, const std::string& path)
{
    const std::string property = behindColon(path);
    const auto* view = qobject_cast<const QAbstractItemView*>(&object);
    if (property == "entries")
        return (view ? entries(*view) : entries(dynamic_cast<const QWidget&>(object))).join(", ");
    if (view && property == "tip")
        return tip(*view);
    if (view && property.empty())
        return view->currentIndex().data().toString();
    const QVariant value = object.property(propertyOf(object, path));
    const QSizeF picture = value.value<QPixmap>().size();
    return picture.isEmpty() ? value.toString() : QString::number(picture.width() / picture.height(), 'f', 1);
}

/// Removes a file, or a folder with all that is in it.
void remove(MemoryFileSystem& disk, const std::string& path)
{
    std::erase_if(disk.files,
                  [&](const auto& file) { return file.first == path || file.first.starts_with(path + '/'); });
}

/// Chooses from the open box, the entry that it shows already as well.
void choose(QObject& object, const std::string& text)
{
    auto& box = dynamic_cast<QComboBox&>(object);
    box.showPopup();
    box.view()->setCurrentIndex(entry(*box.view(), text));
    QTest::keyClick(box.view(), Qt::Key_Return);
}

void tick(QObject& object, const std::string& text, Qt::CheckState state)
{
    auto& view = dynamic_cast<QAbstractItemView&>(object);
    view.model()->setData(entry(view, text), state, Qt::CheckStateRole);
}

void press(QWidget& control, const std::string& keys)
{
    const QKeyCombination key = QKeySequence(toQt(keys))[0];
    QTest::keyClick(&control, key.key(), key.keyboardModifiers());
}

void activate(QWidget& window)
{
    window.activateWindow();
    require(QTest::qWaitFor([&] { return window.isActiveWindow(); }), "the window does not become active");
}

void resize(QWidget& window, const std::string& size)
{
    window.resize(std::stoi(size), std::stoi(size.substr(size.find('x') + 1)));
    QCoreApplication::processEvents();
}

} // namespace

Session::Session()
    : m_acts{
          {"start", [this](Text language, Text) { app.startWith(language); }},
          // With the settings that the disk holds.
          {"restart", [this](Text, Text) { require(!app.start(), "a first start"); }},
          {"quit", [this](Text path, Text) { quit(path); }},
          {"put", [this](Text path, Text text) { app.file(path) = windows1250().encode(text); }},
          {"put-bytes", [this](Text path, Text bytes) { app.file(path) = bytes; }},
          {"link", [this](Text path, Text target) { app.files.links[path] = target; }},
          {"lock", [this](Text path, Text) { app.files.unwritable.insert(path); }},
          {"remove", [this](Text path, Text) { remove(app.files, path); }},
          {"answer", [this](Text dialog, Text text) { app.dialogs.answers[dialog].push_back(text); }},
          {"load", [this](Text text, Text) { loadMarked(app.box(), text); }},
          {"in", [this](Text window, Text) { m_window = window; }},
          {"click", [this](Text path, Text text) { click(path, text); }},
          {"doubleclick", [this](Text path, Text text) { click(path, text, true); }},
          {"choose", [this](Text path, Text text) { choose(object(path), text); }},
          {"tick", [this](Text path, Text text) { tick(object(path), text, Qt::Checked); }},
          {"untick", [this](Text path, Text text) { tick(object(path), text, Qt::Unchecked); }},
          {"type", [this](Text path, Text text) { typeKeys(widget(path), text); }},
          {"press", [this](Text path, Text keys) { press(widget(path), keys); }},
          {"set", [this](Text path, Text text) {
               object(path).setProperty(propertyOf(object(path), path), toQt(text));
           }},
          {"show", [this](Text window, Text) { widget(window).show(); }},
          {"activate", [this](Text window, Text) { activate(widget(window)); }},
          {"resize", [this](Text window, Text size) { resize(widget(window), size); }},
          {"close", [this](Text window, Text) { widget(window).close(); }},
      },
      m_looks{
          {"see", [this](Text what, Text value) { EXPECT_EQ(seen(what), value); }},
          {"enabled", [this](Text names, Text) { expectEnabled(names, true); }},
          {"disabled", [this](Text names, Text) { expectEnabled(names, false); }},
          {"stored", [this](Text path, Text text) { EXPECT_EQ(stored(path), text); }},
          {"copied", [this](Text from, Text to) { EXPECT_EQ(stored(to), stored(from)); }},
          {"missing", [this](Text path, Text) { EXPECT_FALSE(app.files.fileExists(path)); }},
          // What the program asked, told and started since this was looked at last.
          {"asked", [this](Text all, Text) { EXPECT_EQ(asked(), all); }},
      }
{
    for (int number = 0; number < 76; ++number)
        app.file("/numbers.lng") += "text " + std::to_string(number) + "\r\n";
}

void Session::play(const Steps& steps)
{
    m_onlyActs = false;
    doSteps(steps);
}

void Session::act(const Steps& steps)
{
    m_onlyActs = true;
    doSteps(steps);
}

void Session::doSteps(const Steps& steps)
{
    for (const Step& step : steps) {
        SCOPED_TRACE(step.place + ": " + step.cells[0] + ' ' + (step.cells.size() > 1 ? step.cells[1] : ""));
        try {
            doStep(step);
        } catch (const std::exception& reason) {
            EXPECT_TRUE(m_onlyActs) << reason.what();
        }
    }
}

void Session::doStep(const Step& step)
{
    Cells cells = step.cells;
    cells.resize(3);
    for (std::string& cell : cells)
        cell = cell.starts_with('@') ? scenarioText(cell.substr(1)) : cell;
    if (cells[0] == "open")
        open(step);
    else if (m_acts.contains(cells[0]))
        m_acts.at(cells[0])(cells[1], cells[2]);
    else if (!m_onlyActs)
        m_looks.at(cells[0])(cells[1], cells[2]);
}

/// Clicks what opens a modal window, in which the inner steps are done. The program opens one when it first starts.
void Session::open(const Step& step)
{
    QWidget* opened = nullptr;
    const auto inside = [&](QWidget& modal) {
        opened = &modal;
        doSteps(step.inner);
    };
    if (step.cells.at(1) == "program")
        app.start(inside);
    else
        RunningApplication::withModal([&] { click(step.cells.at(1), {}); }, inside);
    require(opened && opened->objectName() == toQt(step.cells.at(2)), "the window does not open");
}

/// Clicks what ends the program, or closes the main window as the desktop does.
void Session::quit(Text path)
{
    QObject& by = object(path);
    auto* window = qobject_cast<fmrconfigedit*>(&by);
    const auto act = [&] { window ? void(window->windowHandle()->close()) : RunningApplication::click(by); };
    require(RunningApplication::endsBy(act), "the program does not end");
}

QObject& Session::object(Text path)
{
    const std::string name = path.substr(0, path.find(':'));
    const std::size_t dot = name.find('.');
    if (dot != std::string::npos)
        return app.control<QObject>(name.substr(dot + 1), name.substr(0, dot));
    QWidget* window = app.program().window(name);
    return window ? *window : app.control<QObject>(name, m_window);
}

void Session::click(Text path, Text text, bool twice)
{
    auto* view = qobject_cast<QAbstractItemView*>(&object(path));
    if (!view)
        return RunningApplication::click(object(path));
    const QModelIndex index = entry(*view, text);
    view->scrollTo(index);
    const QPoint point = view->visualRect(index).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, point);
    if (twice)
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, point);
}

std::string Session::seen(Text what)
{
    if (what == "document")
        return std::string(app.box().text());
    if (what == "marks")
        return marked(app.box(), 0, app.state().Settings);
    if (what == "file")
        return app.state().CurrentFile;
    if (what == "addon")
        return app.state().PatchClassName;
    if (what == "settings")
        return QByteArray::fromStdString(encodeSettings(app.state().Settings, windows1250()))
            .toHex(' ')
            .toStdString();
    return fromQt(shown(object(what), what));
}

std::string Session::stored(Text path)
{
    const Outcome<std::string> bytes = app.files.readBytes(path);
    return bytes ? windows1250().decode(*bytes) : bytes.reason();
}

std::string Session::asked()
{
    QStringList lines = toQt(std::exchange(app.dialogs.log, {})).split('\n');
    lines.removeLast();
    return fromQt(lines.join("\r\n"));
}

void Session::expectEnabled(Text names, bool enabled)
{
    std::istringstream all(names);
    for (std::string name; all >> name;)
        EXPECT_EQ(widget(name).isEnabled(), enabled) << name;
}

} // namespace kitwright::testing
