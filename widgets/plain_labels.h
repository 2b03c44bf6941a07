// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

namespace kitwright {

/// Lets every label of the program, tool tips and the labels of standard dialogs included, show its text as it stands.
/// Left to itself a label takes a text with a "<" for a page with pictures, and opens whatever file it names:
/// captions, help and names come out of files that strangers may have written.
class PlainLabels final : public QObject {
    Q_OBJECT

public:
    /// Watches the whole program from now on.
    PlainLabels();

    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace kitwright
