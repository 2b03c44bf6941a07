// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "play.h"
#include "widgets/check_list.h"

#include <QApplication>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>

#include <algorithm>

namespace kitwright::badinput {

namespace {

constexpr const char* document = "addon/config.cpp";
constexpr const char* table = "addon/Stringtable.csv";

/// Every line end as CR LF.
std::string reEnded(const std::string& bytes)
{
    std::string result;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool pair = bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n';
        if (bytes[i] == '\r' || bytes[i] == '\n')
            result += "\r\n";
        else
            result += bytes[i];
        i += pair ? 1 : 0;
    }
    return result;
}

bool equalInAnyCase(const std::string& left, const std::string& right)
{
    return left.size() == right.size()
        && std::equal(left.begin(), left.end(), right.begin(), [](char one, char other) {
               const auto lower = [](char letter) {
                   return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 'a' - 'A') : letter;
               };
               return lower(one) == lower(other);
           });
}

/// What opening and saving a document made of it; a fault when it lost anything.
std::string comparison(const std::string& before, const std::string& after)
{
    if (after == before)
        return "saved unchanged";
    const std::string expected = reEnded(before);
    if (after == expected)
        return "saved with CR LF line ends";
    expect(equalInAnyCase(after, expected), "the document lost something between opening and saving");
    return "saved, keywords respelled";
}

/// The table without its first line if that is a header, and without the line ends behind its last line.
std::string bodyOf(std::string text)
{
    if (text.starts_with("LANGUAGE"))
        text.erase(0, std::min(text.find('\n'), text.size() - 1) + 1);
    text.erase(text.find_last_not_of(" \t\r\n") + 1);
    return text;
}

void addKey(Play& play, const std::string& key)
{
    play.program.use("Command1", "Form4");
    play.program.type("Text1", "Form4", key);
    auto& languages = play.program.control<QListWidget>("List2", "Form4");
    if (languages.count() > 0) {
        languages.setCurrentRow(0);
        play.program.type("Text2", "Form4", "new text");
    }
}

} // namespace

std::string editDocument(Play& play)
{
    Program& program = play.program;
    const std::string before = play.stage.read(document);
    const bool opened = program.openDocument(play.stage.path(document));
    if (opened)
        program.use("cmdsave");
    const std::string saved = play.stage.read(document);
    std::string outcome = comparison(before, saved);

    // A blank behind the word, so that no keyword grows out of it.
    program.control<QWidget>("configedit").setFocus();
    QTest::keyClick(&program.control<QWidget>("configedit"), Qt::Key_Home, Qt::ControlModifier);
    program.type("configedit", "fmrconfigedit", "xyzzy ");
    if (!opened) {
        expect(saved == before && program.text() == "xyzzy ", "a document that is not opened changed something");
        return "not opened, left as it is";
    }
    program.use("cmdrefresh");
    program.use("cmdsave");
    expect(play.stage.read(document) == "xyzzy " + saved, "a typed word did not reach the file, or spoiled it");
    return outcome;
}

std::string useDocument(Play& play)
{
    Program& program = play.program;
    program.openDocument(play.stage.path(document));
    auto& editor = program.control<QWidget>("configedit");
    for (const auto& [key, modifier] : {std::pair(Qt::Key_End, Qt::ControlModifier),
                                        {Qt::Key_Up, Qt::NoModifier},
                                        {Qt::Key_End, Qt::NoModifier},
                                        {Qt::Key_PageUp, Qt::NoModifier},
                                        {Qt::Key_Home, Qt::ControlModifier},
                                        {Qt::Key_PageDown, Qt::NoModifier}}) {
        QTest::keyClick(&editor, key, modifier);
        QApplication::processEvents();
    }
    return {};
}

std::string useStringtable(Play& play)
{
    Program& program = play.program;
    program.openDocument(play.stage.path(document));
    program.use("cmdstrings");
    auto& keys = program.control<CheckList>("List1", "Form4");
    auto& languages = program.control<QListWidget>("List2", "Form4");
    program.clickThrough(languages);
    program.clickThrough(keys);
    program.clickThrough(languages);
    program.use("cmdsave");
    expect(play.stage.read(table) == play.bad, "the stringtable was changed by a save");

    const int count = keys.count();
    addKey(play, "KW_New");
    program.use("cmdsave");
    const std::string after = play.stage.read(table);
    if (after == play.bad) {
        // Saved again with a key more, nothing was written: the file was refused, which is right for what is no text.
        play.stage.write(table, play.bad);
        return "left as it is";
    }
    expect(after.find("$STRM_KW_New,new text") != std::string::npos, "a new key is not in the stringtable");
    expect(after.find(bodyOf(play.bad)) != std::string::npos, "the stringtable lost lines to a new key");
    return std::to_string(count) + " keys, the rest kept";
}

std::string useSettings(Play& play)
{
    play.program.useModal("cmdsetup", [&](QWidget&) {
        play.program.use("Check1", "Form5");
        play.program.use("Check1", "Form5");
    });
    const bool isDefault = play.program.application().context().state.Settings.LanguageFile.empty();
    return isDefault ? "read as far as it goes" : "a language is named";
}

} // namespace kitwright::badinput
