// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/dialogs.h"
#include "platform/program_launcher.h"

#include <deque>
#include <functional>
#include <map>
#include <string>

namespace kitwright::testing {

/// Answers dialogs from queues and notes what was asked. Programs are not started, but noted, too.
class FakeDialogs final : public Dialogs, public ProgramLauncher {
public:
    /// What the next dialogs of a kind are answered: "open" and "save" by a path, "colour" by "#rrggbb", "yes/no" by
    /// "yes" or "no", "text" by a text. "cancel" and an empty queue cancel.
    std::map<std::string, std::deque<std::string>> answers;

    /// What is answered, in the same words, when a queue is empty.
    std::function<std::string(const std::string& kind)> otherwise = [](const std::string&) { return "cancel"; };

    /// All that was asked, told and started, a line each: the kind, and the text, the parts of a file dialog or the
    /// program with its argument; line ends in it as "\r" and "\n".
    std::string log;

    std::optional<std::string> openFile(const FileDialog& dialog) override { return ask("open", parts(dialog)); }
    std::optional<std::string> saveFile(const FileDialog& dialog) override { return ask("save", parts(dialog)); }
    void showMessage(const std::string& text) override { note("tell " + text); }
    bool askYesNo(const std::string& question) override { return ask("yes/no", question) == "yes"; }
    std::string askText(const std::string& prompt) override { return ask("text", prompt).value_or(""); }

    std::optional<std::uint32_t> chooseColour() override
    {
        const std::optional<std::string> chosen = ask("colour", {});
        if (!chosen)
            return {};
        const unsigned long rgb = std::stoul(chosen->substr(1), nullptr, 16);
        return static_cast<std::uint32_t>((rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16);
    }

    Failure start(const std::string& program, const std::string& argument) override
    {
        note("start " + program + " [" + argument + "]");
        return {};
    }

private:
    static std::string parts(const FileDialog& dialog)
    {
        return "[" + dialog.filter + "] [" + dialog.defaultExtension + "] [" + dialog.fileName + "] ["
             + dialog.title + "]";
    }

    void note(const std::string& line)
    {
        for (const char character : line)
            log += character == '\r' ? "\\r" : character == '\n' ? "\\n" : std::string(1, character);
        log += '\n';
    }

    std::optional<std::string> ask(const std::string& kind, const std::string& text)
    {
        note(kind + ' ' + text);
        std::deque<std::string>& queue = answers[kind];
        const std::string answer = queue.empty() ? otherwise(kind) : queue.front();
        if (!queue.empty())
            queue.pop_front();
        return answer == "cancel" ? std::nullopt : std::optional(answer);
    }
};

} // namespace kitwright::testing
