// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/session.h"

#include "support/style_marks.h"
#include "support/typing.h"
#include "text/windows_1250.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QToolTip>
#include <QTreeView>
#include <gtest/gtest.h>

#include <set>

namespace kitwright::testing {

namespace {

const std::set<std::string> looks{"asked", "disabled", "enabled", "missing", "see", "stored"};

/// Verbs that are told one cell each time, not two.
const std::set<std::string> ofOneCell{"disabled", "enabled", "lock", "missing", "remove"};

/// The first entry of a list or tree with that text.
QModelIndex entry(const QAbstractItemView& view, const std::string& text)
{
    const QModelIndex first = view.model()->index(0, 0);
    const auto found = view.model()->match(first, Qt::DisplayRole, toQt(text), 1,
                                           Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
    if (found.isEmpty())
        throw std::runtime_error("no entry " + text);
    return found[0];
}

/// The entries that a list or an open branch of a tree shows, "+" behind what is ticked.
QStringList entries(const QAbstractItemView& view, const QModelIndex& branch = {})
{
    QStringList all;
    for (int row = 0; row < view.model()->rowCount(branch); ++row) {
        const QModelIndex index = view.model()->index(row, 0, branch);
        all += index.data().toString() + (index.data(Qt::CheckStateRole).toInt() == Qt::Checked ? "+" : "");
        if (const auto* tree = qobject_cast<const QTreeView*>(&view); tree && tree->isExpanded(index))
            all += entries(view, index);
    }
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

/// The property that a path names behind its colon, or the one that says most of the control.
QByteArray propertyOf(const QObject& object, const std::string& path)
{
    if (const std::size_t colon = path.find(':'); colon != std::string::npos)
        return QByteArray::fromStdString(path.substr(colon + 1));
    for (const char* name : {"currentText", "title", "text", "plainText"}) {
        if (object.property(name).isValid())
            return name;
    }
    return "windowTitle";
}

/// A property as text; of a picture, how many times as wide as high it is.
QString shown(const QObject& object, const QByteArray& property)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(&object);
    if (view && property == "entries")
        return entries(*view).join(", ");
    if (view && property == "tip")
        return tip(*view);
    if (view && property == "windowTitle")
        return view->currentIndex().data().toString();
    const QVariant value = object.property(property);
    const QSizeF picture = value.value<QPixmap>().size();
    return picture.isEmpty() ? value.toString() : QString::number(picture.width() / picture.height(), 'f', 1);
}

/// Removes a file, or a folder with all that is in it.
void remove(MemoryFileSystem& disk, const std::string& path)
{
    std::erase_if(disk.files, [&](const auto& file) { return (file.first + '/').starts_with(path + '/'); });
}

void activate(QWidget& window)
{
    window.activateWindow();
    QCoreApplication::processEvents();
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
    const QKeySequence all(toQt(keys));
    for (uint i = 0; i < static_cast<uint>(all.count()); ++i)
        QTest::keyClick(&control, all[i].key(), all[i].keyboardModifiers());
}

} // namespace

Session::Session()
    : m_verbs{
        {"start", [this](Text language, Text) { app.startWith(language); }},
        // With the settings that the disk holds.
        {"restart", [this](Text, Text) { app.start(); }},
        {"quit", [this](Text verb, Text path) { EXPECT_TRUE(app.endsBy([&] { m_verbs.at(verb)(path, {}); })); }},
        {"put", [this](Text path, Text text) { app.file(path) = windows1250().encode(text); }},
        {"put-bytes", [this](Text path, Text bytes) { app.file(path) = bytes; }},
        {"link", [this](Text path, Text target) { app.files.links[path] = target; }},
        {"lock", [this](Text path, Text) { app.files.unwritable.insert(path); }},
        {"remove", [this](Text path, Text) { remove(app.files, path); }},
        {"answer", [this](Text dialog, Text text) { app.dialogs.answers[dialog].push_back(text); }},
        {"load", [this](Text text, Text) { loadMarked(app.box(), text); }},
        {"in", [this](Text window, Text) { activate(app.window(m_window = window)); }},
        {"click", [this](Text path, Text text) { click(path, text); }},
        {"doubleclick", [this](Text path, Text text) { click(path, text, true); }},
        {"choose", [this](Text path, Text text) { choose(object(path), text); }},
        {"tick", [this](Text path, Text text) { tick(object(path), text, Qt::Checked); }},
        {"untick", [this](Text path, Text text) { tick(object(path), text, Qt::Unchecked); }},
        {"type", [this](Text path, Text text) { typeKeys(widget(path), text); }},
        {"press", [this](Text path, Text keys) { press(widget(path), keys); }},
        {"set",
         [this](Text path, Text text) { object(path).setProperty(propertyOf(object(path), path), toQt(text)); }},
        {"close", [this](Text path, Text) { widget(path).close(); }},
        {"see", [this](Text what, Text value) { EXPECT_EQ(seen(what), value) << what; }},
        {"enabled", [this](Text name, Text) { EXPECT_EQ(seen(name + ":enabled"), "true") << name; }},
        {"disabled", [this](Text name, Text) { EXPECT_EQ(seen(name + ":enabled"), "false") << name; }},
        {"stored", [this](Text path, Text text) { EXPECT_EQ(stored(path), text) << path; }},
        {"missing", [this](Text path, Text) { EXPECT_FALSE(app.files.fileExists(path)) << path; }},
    }
{
    for (int number = 0; number < 76; ++number)
        app.file("/numbers.lng") += "text " + std::to_string(number) + "\r\n";
}

void Session::doSteps(const Steps& steps, bool onlyActs)
{
    for (const Step& step : steps) {
        between();
        SCOPED_TRACE(step.place + ": " + ::testing::PrintToString(step.cells));
        try {
            doStep(step, onlyActs);
        } catch (const std::exception& reason) {
            EXPECT_TRUE(onlyActs) << reason.what();
        }
    }
}

void Session::doStep(const Step& step, bool onlyActs)
{
    const std::string& name = step.cells[0];
    if (name == "open")
        return open(step, onlyActs);
    if (onlyActs && looks.contains(name))
        return;
    Cells told(step.cells.begin() + 1, step.cells.end());
    for (std::string& cell : told) {
        if (cell.starts_with('@'))
            cell = cell.starts_with("@/") ? stored(cell.substr(1)) : scenarioText(cell.substr(1));
    }
    if (name == "asked")
        return expectAsked(told);
    const std::size_t end = std::max<std::size_t>(told.size(), 1);
    told.resize(end + 2);
    for (std::size_t cell = 0; cell < end; cell += ofOneCell.contains(name) ? 1 : 2)
        m_verbs.at(name)(told[cell], told[cell + 1]);
}

/// Clicks what opens a modal window, in which the inner steps are done. The program opens one when it first starts.
void Session::open(const Step& step, bool onlyActs)
{
    const std::string outer = m_window;
    bool isMeant = false;
    const auto inside = [&](const QWidget& modal) {
        m_window = step.cells.at(2);
        isMeant = modal.objectName() == toQt(m_window);
        doSteps(step.inner, onlyActs);
        m_window = outer;
    };
    if (step.cells[1] == "program")
        app.start(inside);
    else
        RunningApplication::withModal([&] { RunningApplication::click(object(step.cells[1])); }, inside);
    EXPECT_TRUE(isMeant || onlyActs) << "the window does not open";
}

QObject& Session::object(Text path)
{
    const std::string name = path.substr(0, path.find(':'));
    if (QWidget* window = app.program().window(name))
        return *window;
    const bool isHere = app.window(m_window).findChild<QObject*>(toQt(name));
    const std::size_t dot = name.find('.');
    const std::string window = dot != std::string::npos ? name.substr(0, dot) : isHere ? m_window : "fmrconfigedit";
    return app.control<QObject>(name.substr(dot + 1), window);
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
    const std::string document(app.box().text());
    if (what == "document")
        return document;
    if (what.starts_with("line "))
        return fromQt(toQt(document).split(QStringLiteral("\r\n")).value(std::stoi(what.substr(5)) - 1));
    if (what == "marks")
        return marked(app.box(), 0, app.state().Settings);
    if (what == "settings")
        return changedSettings();
    if (what == "file" || what == "addon")
        return what == "file" ? app.state().CurrentFile : app.state().PatchClassName;
    return fromQt(shown(object(what), propertyOf(object(what), what)));
}

std::string Session::stored(Text path)
{
    const Outcome<std::string> bytes = app.files.readBytes(path);
    return bytes ? windows1250().decode(*bytes) : bytes.reason();
}

/// Each with its place, "4:ff 5:ff"; none at the first look.
std::string Session::changedSettings()
{
    const std::string before = std::exchange(m_settings, encodeSettings(app.state().Settings, windows1250()));
    QStringList changed;
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] != m_settings.at(i))
            changed += QString::number(i) + ':' + QByteArray(1, m_settings[i]).toHex();
    }
    return fromQt(changed.join(' '));
}

/// What the program asked, told and started since this was looked at last, each a line of the log or its beginning.
void Session::expectAsked(const Cells& cells)
{
    const QStringList asked = toQt(std::exchange(app.dialogs.log, {})).split('\n', Qt::SkipEmptyParts);
    const auto isMeant = [](const auto& line, const auto& cell) {
        return (line + ' ').startsWith(toQt(cell) + ' ');
    };
    EXPECT_TRUE(std::equal(asked.begin(), asked.end(), cells.begin(), cells.end(), isMeant))
        << fromQt(asked.join('\n'));
}

} // namespace kitwright::testing
