// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "editor/scintilla_control.h"
#include "editor/scintilla_text_box.h"
#include "support/sample_keywords.h"
#include "support/scenario.h"
#include "support/style_marks.h"
#include "support/typing.h"
#include "text/windows_1250.h"

#include <gtest/gtest.h>

namespace kitwright::testing {

/// A document in the real control, and what colours it.
struct ColouredDocument : ::testing::Test {
    void type(std::string_view keys) { typeKeys(control, keys); }

    ScintillaControl control;
    ScintillaTextBox box{control, windows1250()};
    const KeywordList keywords = sampleKeywords();
    EditorSettings settings = distinctStyles();
};

} // namespace kitwright::testing
