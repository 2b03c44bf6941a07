// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "checks.h"

#include "editor/scintilla_control.h"
#include "editor/scintilla_text_box.h"
#include "platform/qt_text.h"
#include "platform/shown_text.h"
#include "text/letter_case.h"
#include "text/text_files.h"
#include "text/windows_1250.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

namespace kitwright::walking {

void Checks::afterEvent()
{
    const std::string_view text = m_stage.document();
    if (text != m_text) {
        checkText(text);
        m_text = text;
    }
    checkOpened();
    checkWindows();
}

void Checks::checkText(std::string_view text)
{
    m_stage.record.mix(text);
    if (m_stage.isComposing())
        return;
    if (!hasOnlyCrLf(text))
        m_stage.record.fail("a line of the document does not end with CR LF");
    if (!windows1250().holds(text))
        m_stage.record.fail("the document holds what the code page lacks");
}

/// Colouring may respell keywords, which changes the case of letters only.
void Checks::checkOpened()
{
    const std::string path = m_stage.dialogs.takeOpened();
    if (path.empty())
        return;
    const Outcome<std::string> bytes = m_stage.files.readBytes(path);
    if (!bytes)
        return;
    m_stage.record.count("documents opened");
    if (m_stage.state().CurrentFile != path)
        m_stage.record.fail("the document that was opened is not the current one: " + path);
    if (upperCased(withCrLf(windows1250().decode(*bytes))) != upperCased(m_stage.document()))
        m_stage.record.fail("the document that was opened is not the one in the file: " + path);
}

void Checks::checkWindows()
{
    static const std::set<std::string> known = {"frmrejstrik2", "Form1", "Form2",        "Form3",
                                                "Form4",        "Form5", "Form6",        "Form7",
                                                "Form8",        "Form9", "frmfaceaddon", "frmvehikl"};
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        const auto* dialog = qobject_cast<const QDialog*>(widget);
        if (dialog && dialog->isVisible() && !known.contains(fromQt(dialog->objectName())))
            m_stage.record.fail(std::string("an unknown window is open: ") + dialog->metaObject()->className());
    }
}

void Checks::nowAndThen()
{
    m_stage.files.checkDisk();
    if (const auto* strings = m_stage.main().findChild<QDialog*>(QStringLiteral("Form4")))
        checkStrings(*strings);
}

void Checks::checkStrings(const QDialog& window)
{
    const QString key = window.findChild<QLineEdit*>(QStringLiteral("Text1"))->text();
    const QString text = window.findChild<QPlainTextEdit*>(QStringLiteral("Text2"))->toPlainText();
    if (!windows1250().holds(fromQt(key)) || !windows1250().holds(fromQt(text)))
        m_stage.record.fail("a box of the stringtable holds what the code page lacks");
    const QListWidgetItem* current = window.findChild<QListWidget*>(QStringLiteral("List1"))->currentItem();
    if (current && current->toolTip() != shownText(fromQt(key)))
        m_stage.record.fail("the key that is shown is not the highlighted one");
}

void Checks::undoAndRedo()
{
    auto& box = dynamic_cast<ScintillaTextBox&>(m_stage.box());
    const ScintillaControl& editor = m_stage.editor();
    const auto redoAll = [&] {
        while (editor.isRedoAvailable())
            box.redo();
        return std::string(box.text());
    };
    const std::string before = redoAll();
    std::size_t steps = 0;
    for (; editor.isUndoAvailable(); ++steps) {
        box.undo();
        checkText(box.text());
    }
    if (redoAll() != before)
        m_stage.record.fail("undoing and redoing all does not give the same text");
    m_stage.record.count("histories undone and redone");
    m_stage.record.mix(std::to_string(steps));
}

} // namespace kitwright::walking
