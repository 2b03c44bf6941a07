// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include <vector>

class QMenuBar;
class QShortcut;

namespace kitwright {

/// Alt and the first free letter of its caption open each entry of a menu bar, in any language: the captions come
/// from language files, which mark no letters.
class MenuKeys final : public QObject {
    Q_OBJECT

public:
    /// Lives as long as the menu bar, which owns it.
    explicit MenuKeys(QMenuBar& bar);

private:
    void assign();

    QMenuBar& m_bar;
    std::vector<QShortcut*> m_keys; ///< One for each entry of the bar.
};

} // namespace kitwright
