// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/check_command.h"

#include "config/addon_reader.h"
#include "config/check.h"
#include "services/game_classes.h"

#include <algorithm>
#include <ostream>

namespace kitwright {

namespace {

constexpr const char* usage = "usage: kitwright --check FILE... [--format json] [--language xx]";

/// The checked files of an order, one after the other.
class CheckRun {
public:
    CheckRun(const CheckOrder& order, const FileSystem& files, const CodePage& codePage, const GameKnowledge& game,
             const MessageTexts& texts)
        : m_order(order),
          m_files(files),
          m_codePage(codePage),
          m_game(game),
          m_texts(texts)
    {
    }

    /// Gives what is to be printed of a file; nothing when it cannot be read.
    std::optional<std::string> check(const std::string& path, std::ostream& errors)
    {
        const Outcome<std::string> bytes = m_files.readBytes(path);
        if (!bytes) {
            errors << "kitwright: " << bytes.reason() << '\n';
            return std::nullopt;
        }
        const std::string text = configText(*bytes, m_codePage);
        const AddonFolder folder = readAddonFolder(m_files, m_codePage, path);
        const Outcome<std::string> place = m_files.realFolder(path);
        Surroundings surroundings = {&m_game.classes, &m_game.properties, &folder, {}};
        surroundings.readFile = [&](const std::string& file) -> std::optional<std::string> {
            const Outcome<std::string> included = m_files.readBytes((place ? *place : std::string()) + "/" + file);
            if (!included)
                return std::nullopt;
            return configText(*included, m_codePage);
        };
        const FindingList findings = kitwright::check(text, surroundings).findings;
        hasErrors = hasErrors || findings.count(Severity::Error) > 0;
        if (findings.count() > findings.kept().size())
            errors << path << ": " << findings.count() - findings.kept().size() << " more findings are not shown\n";
        return m_order.format == CheckOrder::Format::Json ? findingObjects(path, text, findings, m_texts)
                                                          : findingLines(path, text, findings, m_texts);
    }

    bool hasErrors = false;

private:
    const CheckOrder& m_order;
    const FileSystem& m_files;
    const CodePage& m_codePage;
    const GameKnowledge& m_game;
    const MessageTexts& m_texts;
};

} // namespace

std::optional<CheckOrder> checkOrder(std::span<const std::string> arguments)
{
    if (std::find(arguments.begin(), arguments.end(), "--check") == arguments.end())
        return std::nullopt;
    CheckOrder order;
    bool isOptionsEnd = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        const bool hasValue = i + 1 < arguments.size();
        if (isOptionsEnd || !argument.starts_with("--")) {
            order.files.push_back(argument);
        } else if (argument == "--") {
            isOptionsEnd = true;
        } else if (argument == "--format" && hasValue
                   && (arguments[i + 1] == "json" || arguments[i + 1] == "text")) {
            order.format = arguments[++i] == "json" ? CheckOrder::Format::Json : CheckOrder::Format::Lines;
        } else if (argument == "--language" && hasValue) {
            order.language = arguments[++i];
        } else if (argument != "--check") {
            order.fault = "cannot do " + argument + "\n" + usage;
        }
    }
    if (order.files.empty() && order.fault.empty())
        order.fault = usage;
    return order;
}

GameKnowledge readGameKnowledge(const TextFiles& texts, const std::string& programFolder)
{
    GameKnowledge game;
    const std::string folder = programFolder + "/Bfdata/kitwright/";
    KeywordTree classes;
    if (!NactiTridy(texts, folder + "configclass.dat", classes))
        game.classes = gameClasses(classes);
    if (const auto kinds = texts.read(folder + "configkinds.dat"))
        game.properties.addLines(*kinds);
    return game;
}

int runCheck(const CheckOrder& order, const FileSystem& files, const CodePage& codePage, const GameKnowledge& game,
             const MessageTexts& texts, std::ostream& out, std::ostream& errors)
{
    constexpr int fine = 0;
    constexpr int faulty = 1;
    constexpr int failed = 2;
    if (!order.fault.empty()) {
        errors << "kitwright: " << order.fault << '\n';
        return failed;
    }
    CheckRun run(order, files, codePage, game, texts);
    bool isRead = true;
    std::string objects;
    for (const std::string& file : order.files) {
        const std::optional<std::string> output = run.check(file, errors);
        isRead = isRead && output;
        if (!output || output->empty())
            continue;
        if (order.format == CheckOrder::Format::Json)
            objects.append(objects.empty() ? "" : ",\n").append(*output);
        else
            out << *output;
    }
    if (order.format == CheckOrder::Format::Json)
        out << (objects.empty() ? "[]\n" : "[\n" + objects + "\n]\n");
    out.flush();
    if (!isRead)
        return failed;
    return run.hasErrors ? faulty : fine;
}

} // namespace kitwright
