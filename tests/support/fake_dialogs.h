// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/dialogs.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace kitwright::testing {

/// Answers dialogs from queues and notes what was asked. An empty queue cancels.
class FakeDialogs final : public Dialogs {
public:
    std::deque<std::optional<std::string>> openAnswers;
    std::deque<std::optional<std::string>> saveAnswers;
    std::deque<std::optional<std::uint32_t>> colourAnswers;
    std::deque<bool> yesNoAnswers;
    std::deque<std::string> textAnswers;

    std::vector<FileDialog> openAsked;
    std::vector<FileDialog> saveAsked;
    std::vector<std::string> messages;
    std::vector<std::string> questions;
    std::vector<std::string> prompts;

    std::optional<std::string> openFile(const FileDialog& dialog) override
    {
        openAsked.push_back(dialog);
        return next(openAnswers);
    }

    std::optional<std::string> saveFile(const FileDialog& dialog) override
    {
        saveAsked.push_back(dialog);
        return next(saveAnswers);
    }

    std::optional<std::uint32_t> chooseColour() override { return next(colourAnswers); }
    void showMessage(const std::string& text) override { messages.push_back(text); }

    bool askYesNo(const std::string& question) override
    {
        questions.push_back(question);
        return next(yesNoAnswers);
    }

    std::string askText(const std::string& prompt) override
    {
        prompts.push_back(prompt);
        return next(textAnswers);
    }

private:
    template <class Answer>
    static Answer next(std::deque<Answer>& answers)
    {
        if (answers.empty())
            return Answer();
        Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

} // namespace kitwright::testing
