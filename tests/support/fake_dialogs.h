// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/dialogs.h"

#include <deque>
#include <string>
#include <vector>

namespace kitwright::testing {

/// Answers dialogs from queues and notes what was asked. An empty queue cancels. `log` tells all of it in order, a line
/// each: what was asked, and the text or the parts of a file dialog, line ends in it as "\r" and "\n".
class FakeDialogs final : public Dialogs {
public:
    std::deque<std::optional<std::string>> openAnswers;
    std::deque<std::optional<std::string>> saveAnswers;
    std::deque<std::optional<std::uint32_t>> colourAnswers;
    std::deque<bool> yesNoAnswers;
    std::deque<std::string> textAnswers;

    std::vector<FileDialog> openAsked;
    std::vector<std::string> questions;
    std::vector<std::string> prompts;
    std::string log;

    std::optional<std::string> openFile(const FileDialog& dialog) override
    {
        openAsked.push_back(dialog);
        return next("open " + parts(dialog), openAnswers);
    }

    std::optional<std::string> saveFile(const FileDialog& dialog) override
    {
        return next("save " + parts(dialog), saveAnswers);
    }

    std::optional<std::uint32_t> chooseColour() override { return next("colour", colourAnswers); }
    void showMessage(const std::string& text) override { note("tell " + text); }

    bool askYesNo(const std::string& question) override
    {
        questions.push_back(question);
        return next("yes/no " + question, yesNoAnswers);
    }

    std::string askText(const std::string& prompt) override
    {
        prompts.push_back(prompt);
        return next("text " + prompt, textAnswers);
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

    template <class Answer>
    Answer next(const std::string& asked, std::deque<Answer>& answers)
    {
        note(asked);
        if (answers.empty())
            return Answer();
        Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

} // namespace kitwright::testing
