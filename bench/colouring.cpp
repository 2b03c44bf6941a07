// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/colouring.h"

#include "bench.h"
#include "editor/scintilla_control.h"
#include "editor/scintilla_text_box.h"
#include "services/keyword_tree.h"
#include "text/windows_1250.h"

#include <algorithm>

namespace kitwright::bench {

namespace {

using Sci = QsciScintillaBase;

struct Editor {
    explicit Editor(std::string document) : text(std::move(document)) { box.loadText(text); }

    double pass()
    {
        return timeOf([&] { colourBox(box, keywords(), settings); });
    }

    /// A pass over a document that was just opened; opening is not counted.
    double firstPass()
    {
        box.loadText(text);
        return pass();
    }

    /// Every coloured byte changes.
    double passWithNewColours()
    {
        settings.CommentColor ^= 0xFF;
        settings.CKeywordColor ^= 0xFF;
        settings.ConfigKeywordColor ^= 0xFF;
        settings.ClassNameColor ^= 0xFF;
        return pass();
    }

    /// The floor: the control takes a style for every byte.
    double stylingAlone()
    {
        std::string styles = colourText(text, keywords(), settings).styles.entries;
        std::replace(styles.begin(), styles.end(), StyleMap::keep, '\0');
        box.loadText(text);
        return timeOf([&] {
            control.SendScintilla(Sci::SCI_STARTSTYLING, 0UL);
            control.SendScintilla(Sci::SCI_SETSTYLINGEX, styles.size(), styles.data());
        });
    }

    /// The control's own lexer for the language.
    double ownLexer()
    {
        control.SendScintilla(Sci::SCI_SETLEXER, static_cast<unsigned long>(Sci::SCLEX_CPP));
        control.SendScintilla(Sci::SCI_SETPROPERTY, "fold", "0");
        std::string words;
        for (int i = 0; i < keywords().count(); ++i)
            words.append(keywords().textAt(i)).append(" ");
        control.SendScintilla(Sci::SCI_SETKEYWORDS, 0UL, words.c_str());
        box.loadText(text);
        const double time = timeOf([&] { control.SendScintilla(Sci::SCI_COLOURISE, 0UL, -1L); });
        control.SendScintilla(Sci::SCI_SETLEXER, static_cast<unsigned long>(Sci::SCLEX_CONTAINER));
        return time;
    }

    const std::string text;
    ScintillaControl control;
    ScintillaTextBox box{control, windows1250()};
    EditorSettings settings;
};

/// 100,000 look-ups in a list of so many keywords, every second of a word that it lacks.
std::function<double()> lookUps(int count)
{
    std::string lines;
    for (int i = 0; i < count; ++i)
        lines += "keyword" + std::to_string(i * 7919 % 1000003) + "\r\n";
    KeywordList list;
    list.addLines(lines, KeywordClass::ConfigCommand);
    std::vector<std::string> words;
    for (int i = 0; i < 100; ++i)
        words.emplace_back(i % 2 ? std::string(list.textAt(i * (count / 100))) : "Absent" + std::to_string(i));
    return [list, words, found = 0]() mutable {
        return timeOf([&] {
            for (std::size_t i = 0; i < 100'000; ++i)
                found += list.find(words[i % words.size()]);
        });
    };
}

std::function<double()> loadTree(int lines)
{
    std::string text;
    for (int i = 0; i < lines; ++i)
        text += std::string(static_cast<std::size_t>(i % 7 * 3), ' ') + "Entry" + std::to_string(i) + "\r\n";
    return [text] {
        KeywordTree tree;
        return timeOf([&] { addTreeLines(text, tree); });
    };
}

} // namespace

void measureColouring()
{
    Editor usual(sampleConfig(largeDocument));
    Editor dense(denseConfig(largeDocument));
    const auto times = quickest(7, {[&] { return usual.stylingAlone(); }, [&] { return usual.firstPass(); },
                                    [&] { return usual.pass(); }, [&] { return usual.passWithNewColours(); },
                                    [&] { return usual.ownLexer(); }, [&] { return dense.stylingAlone(); },
                                    [&] { return dense.firstPass(); }});
    promise(0.33, "full pass / the control's own lexer", times[1] / times[4]);
    promise(2.5, "full pass / setting the styles alone", times[1] / times[0]);
    promise(2.5, "full pass on a coloured document / setting the styles alone", times[2] / times[0]);
    promise(2.5, "full pass with new colours / setting the styles alone", times[3] / times[0]);
    promise(2.3, "full pass where every line begins with a keyword / setting the styles alone",
            times[6] / times[5]);
}

void measureLists()
{
    const auto times = quickest(5, {lookUps(100), lookUps(10'000), loadTree(10'000), loadTree(100'000)});
    promise(3, "look-up among 10,000 keywords / among 100", times[1] / times[0]);
    promise(15, "100,000 tree lines / 10,000", times[3] / times[2]);
}

} // namespace kitwright::bench
