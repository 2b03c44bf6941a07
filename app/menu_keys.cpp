// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/menu_keys.h"

#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QShortcut>

namespace kitwright {

namespace {

/// Alt and the first letter or digit of a caption that is not taken; empty when there is none.
QKeySequence freeKey(const QString& caption, const QSet<QKeySequence>& taken)
{
    for (const QChar letter : caption.toUpper()) {
        const QKeySequence key(QStringLiteral("Alt+%1").arg(letter));
        if (letter.isLetterOrNumber() && letter.unicode() < 0x80 && !taken.contains(key))
            return key;
    }
    return {};
}

} // namespace

MenuKeys::MenuKeys(QMenuBar& bar) : QObject(&bar), m_bar(bar)
{
    for (QAction* entry : m_bar.actions()) {
        auto* key = new QShortcut(m_bar.parentWidget());
        connect(key, &QShortcut::activated, this, [this, entry] {
            if (!entry->menu())
                entry->trigger();
            else
                m_bar.setActiveAction(entry);
        });
        connect(entry, &QAction::changed, this, &MenuKeys::assign);
        m_keys.push_back(key);
    }
    assign();
}

void MenuKeys::assign()
{
    QSet<QKeySequence> taken;
    const QList<QAction*> entries = m_bar.actions();
    // A caption with a "&" has a key already, from the toolkit.
    for (const QAction* entry : entries)
        taken << QKeySequence::mnemonic(entry->text());
    for (qsizetype i = 0; i < entries.size(); ++i) {
        QKeySequence key;
        if (QKeySequence::mnemonic(entries[i]->text()).isEmpty())
            key = freeKey(entries[i]->text(), taken);
        taken << key;
        m_keys[static_cast<std::size_t>(i)]->setKey(key);
    }
}

} // namespace kitwright
