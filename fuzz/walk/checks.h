// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "stage.h"

namespace kitwright::walking {

/// What must hold at any time. Whatever does not ends the walk.
class Checks {
public:
    explicit Checks(Stage& stage) : m_stage(stage) {}

    /// After an event: the text and the windows; what was opened is what stands in the editor.
    void afterEvent();

    /// Costs more: the disk, and the boxes whose texts go into files.
    void nowAndThen();

    /// Undoes all there is and does it again; the text is the same after it.
    void undoAndRedo();

private:
    void checkText(std::string_view text);
    void checkOpened();
    void checkWindows();
    void checkStrings(const QDialog& window);

    Stage& m_stage;
    std::string m_text;
};

} // namespace kitwright::walking
