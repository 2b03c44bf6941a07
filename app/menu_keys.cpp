// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/menu_keys.h"

#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QShortcut>

namespace kitwright {

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
    QSet<QChar> taken;
    const QList<QAction*> entries = m_bar.actions();
    for (qsizetype i = 0; i < entries.size(); ++i) {
        QKeySequence keys;
        for (const QChar letter : entries[i]->text().toUpper()) {
            if (letter.isLetterOrNumber() && letter.unicode() < 0x80 && !taken.contains(letter)) {
                taken << letter;
                keys = QKeySequence(QStringLiteral("Alt+%1").arg(letter));
                break;
            }
        }
        m_keys[static_cast<std::size_t>(i)]->setKey(keys);
    }
}

} // namespace kitwright
