// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packer/command_line.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace kitwright {

namespace {

using Parsed = Outcome<CommandLine>;

struct Verb {
    std::string_view word;
    PackCommand command;
    std::size_t operands;
};

constexpr std::array<Verb, 4> verbs = {{
    {"pack", PackCommand::Pack, 2},
    {"list", PackCommand::List, 1},
    {"verify", PackCommand::Verify, 1},
    {"unpack", PackCommand::Unpack, 2},
}};

/// Takes the words of one command line.
class Parser {
public:
    explicit Parser(const std::vector<std::string>& words) : m_words(words) {}

    Parsed parse()
    {
        if (has("--help") || has("--version")) {
            CommandLine line;
            line.command = has("--help") ? PackCommand::Help : PackCommand::Version;
            return line;
        }
        const auto verb = std::find_if(verbs.begin(), verbs.end(), [&](const Verb& known) {
            return !m_words.empty() && known.word == m_words.front();
        });
        if (verb == verbs.end())
            return Parsed::failed(m_words.empty() ? "no command" : m_words.front() + ": no such command");
        m_line.command = verb->command;
        for (m_next = 1; m_next < m_words.size();) {
            if (const Failure failure = takeWord())
                return Parsed::failed(*failure);
        }
        if (m_operands.size() != verb->operands)
            return Parsed::failed(std::string(verb->word) + ": takes " + std::to_string(verb->operands)
                                  + " names, not " + std::to_string(m_operands.size()));
        return withOperands();
    }

private:
    bool has(std::string_view option) const
    {
        const auto end = std::find(m_words.begin(), m_words.end(), "--");
        return std::find(m_words.begin(), end, option) != end;
    }

    Failure takeWord()
    {
        const std::string& word = m_words[m_next++];
        if (m_onlyOperands || word.size() < 2 || !word.starts_with('-'))
            m_operands.push_back(word);
        else if (word == "--")
            m_onlyOperands = true;
        else
            return takeOption(word);
        return {};
    }

    Failure takeOption(const std::string& word)
    {
        const std::size_t equals = word.find('=');
        const std::string name = word.substr(0, equals);
        const bool packs = m_line.command == PackCommand::Pack;
        if (packs && (name == "--prefix" || name == "--exclude")) {
            if (equals == std::string::npos && m_next == m_words.size())
                return word + ": needs a value";
            const std::string value = equals == std::string::npos ? m_words[m_next++] : word.substr(equals + 1);
            if (name == "--prefix")
                m_line.order.prefix = value;
            else
                m_line.order.exclusions.push_back(value);
        } else if (packs && word == "--hash") {
            m_line.order.withHash = true;
        } else if (m_line.command == PackCommand::List && word == "--long") {
            m_line.withDetails = true;
        } else {
            return word + ": no such option of " + m_words.front();
        }
        return {};
    }

    Parsed withOperands()
    {
        if (std::find(m_operands.begin(), m_operands.end(), "") != m_operands.end())
            return Parsed::failed("a name is empty");
        if (m_line.command == PackCommand::Pack) {
            m_line.order.folder = m_operands[0];
            m_line.order.archive = m_operands[1];
        } else {
            m_line.archive = m_operands[0];
            m_line.folder = m_operands.back();
        }
        return m_line;
    }

    const std::vector<std::string>& m_words;
    std::size_t m_next = 0;
    bool m_onlyOperands = false;
    std::vector<std::string> m_operands;
    CommandLine m_line;
};

} // namespace

Parsed parseCommandLine(const std::vector<std::string>& words)
{
    return Parser(words).parse();
}

const char* const commandLineHelp =
    R"(Usage: kitwright-pack pack FOLDER ARCHIVE [--prefix P] [--hash] [--exclude PATTERN]...
       kitwright-pack list ARCHIVE [--long]
       kitwright-pack verify ARCHIVE
       kitwright-pack unpack ARCHIVE FOLDER
       kitwright-pack --help | --version

Packs an add-on's folder into an archive (.pbo), and looks into archives.

  pack    makes ARCHIVE of FOLDER and what is below it. Left out, and told, are hidden files, version control,
          backups and temporary files, other archives, links out of FOLDER, and what FOLDER/.pboignore names in
          patterns as in ignore files.
    --prefix P         writes P as the property "prefix"; with an empty P the first line of FOLDER/$PBOPREFIX$
    --hash             ends the archive with a SHA-1
    --exclude PATTERN  a further pattern
  list    shows the names of the files; with --long also properties, sizes in the archive and unpacked, and times
  verify  reads all of ARCHIVE: sizes, sums of compressed files, the SHA-1
  unpack  makes FOLDER, which must not be there or be empty, of ARCHIVE

The first engine generation reads archives without properties and SHA-1 only.
Exit status: 0 when all went well, 1 when a file is at fault, 2 for wrong use.
)";

} // namespace kitwright
