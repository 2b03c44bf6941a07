// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "fuzz/support/string_text_box.h"
#include "platform/windows_1250.h"
#include "services/context.h"
#include "support/fake_dialogs.h"
#include "support/memory_file_system.h"

#include <deque>

namespace kitwright::testing {

/// A main window without a window: a string-backed document, a class tree, and a save that takes the next path of
/// `savePaths` (none left: cancelled). Notes how often the document was coloured.
class FakeHost final : public AddonHost {
public:
    explicit FakeHost(SharedState& state) : m_state(state) {}

    fuzzing::StringTextBox editor;
    KeywordTree classTree;
    std::deque<std::string> savePaths;
    bool saveWorks = true;
    int saves = 0;
    int colourings = 0;

    RichTextBox& configedit() override { return editor; }
    const KeywordTree& classes() const override { return classTree; }

    bool UlozAddon() override
    {
        ++saves;
        if (m_state.CurrentFile.empty() && !savePaths.empty()) {
            m_state.CurrentFile = savePaths.front();
            savePaths.pop_front();
        }
        return saveWorks && !m_state.CurrentFile.empty();
    }

    void VlozText(const std::string& Jmeno) override
    {
        editor.setText("class CfgPatches\r\n{\r\n  class " + Jmeno
                       + "\r\n  {\r\n     units[]={};\r\n     weapons[]={};\r\n   };\r\n};\r\n");
        Uprav2();
    }

    void Uprav2() override
    {
        if (m_changes == 0)
            ++colourings;
        else
            m_colouringDue = true;
    }

    void beginDocumentChange() override
    {
        if (m_changes++ == 0)
            editor.beginUndoStep();
    }

    void endDocumentChange() override
    {
        if (--m_changes > 0)
            return;
        editor.endUndoStep();
        if (m_colouringDue)
            ++colourings;
        m_colouringDue = false;
    }

private:
    SharedState& m_state;
    int m_changes = 0;
    bool m_colouringDue = false;
};

/// All that a window is built from, with stand-ins for the desktop.
struct FakeContext {
    FakeContext() { state.programFolder = "/program"; }

    SharedState state;
    MemoryFileSystem files;
    const CodePage& codePage = windows1250();
    TextFiles texts{files, codePage};
    FakeDialogs dialogs;
    FakeHost host{state};
    Context context{state, files, texts, dialogs, host};
};

} // namespace kitwright::testing
