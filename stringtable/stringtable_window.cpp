// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/stringtable_window.h"

#include "platform/qt_text.h"
#include "platform/shown_text.h"
#include "ui_stringtable_window.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTextDocument>

#include <optional>

namespace kitwright {

namespace {

/// The text of a box as it was typed; unlike its plain text, with no-break spaces.
QString typedText(const QPlainTextEdit& box)
{
    QString text = box.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return text;
}

QString keepable(const CodePage& codePage, const QString& text)
{
    return toQt(codePage.keepable(fromQt(text)));
}

/// What the file cannot hold leaves the box at once, so that the author sees what will be saved.
void keepSavable(QLineEdit& box, const CodePage& codePage)
{
    const QString text = box.text();
    if (codePage.holds(fromQt(text)))
        return;
    const auto caret = keepable(codePage, text.left(box.cursorPosition())).size();
    const QSignalBlocker quiet(box);
    box.setText(keepable(codePage, text));
    box.setCursorPosition(static_cast<int>(caret));
}

void keepSavable(QPlainTextEdit& box, const CodePage& codePage)
{
    const QString text = typedText(box);
    if (codePage.holds(fromQt(text)))
        return;
    const auto caret = keepable(codePage, text.left(box.textCursor().position())).size();
    const QSignalBlocker quiet(box);
    QTextCursor cursor = box.textCursor();
    // One undo step with what brought the characters in, or undoing would bring them back.
    cursor.joinPreviousEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.insertText(keepable(codePage, text));
    cursor.endEditBlock();
    cursor.setPosition(static_cast<int>(caret));
    box.setTextCursor(cursor);
}

std::size_t position(int row)
{
    return static_cast<std::size_t>(row);
}

/// The position of the entry that a list highlights.
std::optional<std::size_t> current(const QListWidget& list)
{
    return list.currentRow() < 0 ? std::nullopt : std::optional(position(list.currentRow()));
}

} // namespace

Form4::Form4(Context& context, TableStore& store, QWidget* parent)
    : QDialog(parent),
      m_context(context),
      m_store(store),
      m_table(store.table()),
      m_ui(std::make_unique<Ui::Form4>())
{
    m_ui->setupUi(this);
    connectControls();
    showTable();
    m_store.watch([this](TableChange change) { tableChanged(change); });
}

Form4::~Form4()
{
    m_store.watch({});
}

void Form4::connectControls()
{
    connect(m_ui->Command1, &QPushButton::clicked, this, &Form4::addKey);
    connect(m_ui->Command2, &QPushButton::clicked, this, &Form4::removeKey);
    connect(m_ui->Command3, &QPushButton::clicked, this, &Form4::removeAllKeys);
    connect(m_ui->Command4, &QPushButton::clicked, this, &QDialog::hide);
    connect(m_ui->Command5, &QPushButton::clicked, this, [this] { m_context.host->UlozAddon(); });
    connect(m_ui->List1, &CheckList::entryClicked, this, &Form4::showKey);
    connect(m_ui->List2, &QListWidget::currentRowChanged, this, &Form4::showText);
    // A click on the current language shows the text of a key that became current since.
    connect(m_ui->List2, &QListWidget::itemClicked, this, &Form4::showText);
    connect(m_ui->Text1, &QLineEdit::textChanged, this, &Form4::storeKey);
    m_ui->Text2->installEventFilter(this);
    connect(m_ui->Text2, &QPlainTextEdit::textChanged, this, &Form4::storeText);
}

void Form4::addKey()
{
    m_table.add();
    showNewKeys();
    enableEditing(true);
    m_ui->Command5->setEnabled(true);
    m_ui->List1->choose(m_ui->List1->count() - 1);
}

void Form4::removeKey()
{
    const std::optional<std::size_t> key = current(*m_ui->List1);
    if (!key)
        return;
    m_table.remove(*key);
    m_ui->List1->removeEntry(m_ui->List1->currentRow());
    if (m_table.StringCount() == 0)
        removeAllKeys();
}

void Form4::removeAllKeys()
{
    m_ui->List1->removeAll();
    m_table.removeAll();
    enableEditing(false);
    m_ui->Command5->setEnabled(false);
    m_ui->Command1->setEnabled(true);
}

/// A typed letter and those before it are one undo step of the box: to drop it later would leave a step that brings it
/// back.
bool Form4::eventFilter(QObject* watched, QEvent* event)
{
    const auto* key = event->type() == QEvent::KeyPress ? static_cast<const QKeyEvent*>(event) : nullptr;
    return (key && !m_context.texts.codePage().holds(fromQt(key->text()))) || QDialog::eventFilter(watched, event);
}

void Form4::showKey(int row)
{
    m_table.setTicked(position(row), m_ui->List1->isTicked(row));
    const QString key = toQt(m_table.entry(position(row)).Key);
    // Setting the same text would move the caret of someone who is typing.
    if (m_ui->Text1->text() == key)
        return;
    const QSignalBlocker quiet(m_ui->Text1);
    m_ui->Text1->setText(key);
}

void Form4::storeKey()
{
    keepSavable(*m_ui->Text1, m_context.texts.codePage());
    const std::optional<std::size_t> key = current(*m_ui->List1);
    if (!key)
        return;
    m_table.setKey(*key, fromQt(m_ui->Text1->text()));
    // A new tool tip would look like a change of the entry's tick.
    const QSignalBlocker quiet(m_ui->List1);
    m_ui->List1->currentItem()->setToolTip(shownText(m_table.entry(*key).Key));
}

void Form4::showText()
{
    if (!current(*m_ui->List1) || !current(*m_ui->List2))
        return;
    const QSignalBlocker quiet(m_ui->Text2);
    // A box lays its text out as one paragraph. A longer one is kept and written as it is, but not edited here.
    constexpr qsizetype longestEdited = 100'000;
    const QString text = currentText();
    const bool editable = text.size() <= longestEdited;
    m_ui->Text2->setReadOnly(!editable);
    m_ui->Text2->setPlainText(editable ? text : shownText(fromQt(text)));
}

void Form4::storeText()
{
    keepSavable(*m_ui->Text2, m_context.texts.codePage());
    const std::optional<std::size_t> key = current(*m_ui->List1);
    const std::optional<std::size_t> language = current(*m_ui->List2);
    if (key && language)
        m_table.setText(*key, *language, withCrLf(fromQt(typedText(*m_ui->Text2))));
}

void Form4::tableChanged(TableChange change)
{
    switch (change) {
    case TableChange::Opened:
        showTable();
        break;
    case TableChange::Saving:
        m_textBeforeSave = currentText();
        break;
    case TableChange::Saved:
        if (m_ui->List1->count() == 0 && m_table.StringCount() > 0) {
            enableEditing(true);
            m_ui->Command5->setEnabled(true);
        }
        showNewKeys();
        showLanguages();
        if (m_textBeforeSave != currentText())
            showText();
        break;
    }
}

void Form4::showTable()
{
    m_ui->List1->removeAll();
    showNewKeys();
    showLanguages();
    // No key is chosen, so the boxes stand for none: nothing typed now may land in a key of the new document.
    const QSignalBlocker quiet1(m_ui->Text1);
    const QSignalBlocker quiet2(m_ui->Text2);
    m_ui->Text1->clear();
    m_ui->Text2->clear();
    m_ui->Text2->setReadOnly(false);
    m_ui->List2->setCurrentRow(-1);
    enableEditing(m_table.StringCount() > 0);
    m_ui->Command5->setEnabled(true);
}

QString Form4::currentText() const
{
    const std::optional<std::size_t> key = current(*m_ui->List1);
    const std::optional<std::size_t> language = current(*m_ui->List2);
    return key && language ? toQt(m_table.entry(*key).Texts[*language]) : QString();
}

/// Lists the keys that the list does not have yet.
void Form4::showNewKeys()
{
    m_ui->List1->setUpdatesEnabled(false);
    for (int row = m_ui->List1->count(); row < static_cast<int>(m_table.StringCount()); ++row) {
        const std::size_t key = position(row);
        m_ui->List1->addEntry(QStringLiteral("String %1").arg(m_table.number(key)),
                              shownText(m_table.entry(key).Key));
        m_ui->List1->setTicked(row, m_table.isTicked(key));
    }
    m_ui->List1->setUpdatesEnabled(true);
}

void Form4::showLanguages()
{
    const std::vector<std::string>& languages = m_table.languages();
    const QSignalBlocker quiet(m_ui->List2);
    while (m_ui->List2->count() > static_cast<int>(languages.size()))
        delete m_ui->List2->takeItem(m_ui->List2->count() - 1);
    for (int row = 0; row < static_cast<int>(languages.size()); ++row) {
        if (row == m_ui->List2->count())
            m_ui->List2->addItem(QString());
        m_ui->List2->item(row)->setText(shownText(languages[position(row)]));
    }
}

void Form4::enableEditing(bool enabled)
{
    for (QWidget* control : {static_cast<QWidget*>(m_ui->List1), static_cast<QWidget*>(m_ui->List2),
                             static_cast<QWidget*>(m_ui->Text2), static_cast<QWidget*>(m_ui->Command2),
                             static_cast<QWidget*>(m_ui->Command3)})
        control->setEnabled(enabled);
}

} // namespace kitwright
