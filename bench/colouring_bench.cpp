// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/colouring.h"

#include "app/live_colouring.h"
#include "editor/scintilla_control.h"
#include "editor/scintilla_text_box.h"
#include "services/keyword_tree.h"
#include "support/ratios.h"
#include "support/sample.h"
#include "text/windows_1250.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QSyntaxHighlighter>
#include <QTest>
#include <QTextCharFormat>

#include <algorithm>

namespace {

using namespace kitwright;
using bench::sampleConfig;
using Sci = QsciScintillaBase;

constexpr std::size_t largeDocument = 11'000'000;
constexpr std::size_t smallDocument = 10'000;

const std::string& document()
{
    static const std::string text = sampleConfig(largeDocument);
    return text;
}

const KeywordList& keywords()
{
    static const KeywordList list = bench::shippedKeywords();
    return list;
}

struct Editor {
    explicit Editor(const std::string& text) { box.loadText(text); }

    ScintillaControl control;
    ScintillaTextBox box{control, windows1250()};
    EditorSettings settings;
};

/// A full pass over a document that was just opened; opening is not counted.
void fullPass(benchmark::State& state)
{
    Editor editor(document());
    for (auto _ : state) {
        state.PauseTiming();
        editor.box.loadText(document());
        state.ResumeTiming();
        colourBox(editor.box, keywords(), editor.settings);
    }
}
BENCHMARK(fullPass)->Unit(benchmark::kMillisecond)->Repetitions(5);

/// The refresh button on a coloured document: every style is set already.
void fullPassAgain(benchmark::State& state)
{
    Editor editor(document());
    colourBox(editor.box, keywords(), editor.settings);
    for (auto _ : state)
        colourBox(editor.box, keywords(), editor.settings);
}
BENCHMARK(fullPassAgain)->Unit(benchmark::kMillisecond)->Repetitions(5);

/// The refresh button after the colours were changed: every coloured byte changes.
void fullPassNewColours(benchmark::State& state)
{
    Editor editor(document());
    for (auto _ : state) {
        editor.settings.CommentColor ^= 0xFF;
        editor.settings.CKeywordColor ^= 0xFF;
        editor.settings.ConfigKeywordColor ^= 0xFF;
        editor.settings.ClassNameColor ^= 0xFF;
        colourBox(editor.box, keywords(), editor.settings);
    }
}
BENCHMARK(fullPassNewColours)->Unit(benchmark::kMillisecond)->Repetitions(5);

/// The floor: the control takes a style for every byte.
void setStylingAlone(benchmark::State& state)
{
    Editor editor(document());
    const FullPass pass = colourText(document(), keywords(), editor.settings);
    std::string styles = pass.styles.entries;
    std::replace(styles.begin(), styles.end(), StyleMap::keep, '\0');
    for (auto _ : state) {
        state.PauseTiming();
        editor.box.loadText(document());
        state.ResumeTiming();
        editor.control.SendScintilla(Sci::SCI_STARTSTYLING, 0UL);
        editor.control.SendScintilla(Sci::SCI_SETSTYLINGEX, styles.size(), styles.data());
    }
}
BENCHMARK(setStylingAlone)->Unit(benchmark::kMillisecond)->Repetitions(5);

/// The control's own lexer for the language over the same text.
void ownLexer(benchmark::State& state)
{
    Editor editor(document());
    editor.control.SendScintilla(Sci::SCI_SETLEXER, static_cast<unsigned long>(Sci::SCLEX_CPP));
    editor.control.SendScintilla(Sci::SCI_SETPROPERTY, "fold", "0");
    std::string words;
    for (int i = 0; i < keywords().count(); ++i)
        words.append(keywords().textAt(i)).append(" ");
    editor.control.SendScintilla(Sci::SCI_SETKEYWORDS, 0UL, words.c_str());
    for (auto _ : state) {
        state.PauseTiming();
        editor.box.loadText(document());
        state.ResumeTiming();
        editor.control.SendScintilla(Sci::SCI_COLOURISE, 0UL, -1L);
    }
}
BENCHMARK(ownLexer)->Unit(benchmark::kMillisecond)->Repetitions(3);

/// The same rules on the toolkit's text widget.
class Highlighter final : public QSyntaxHighlighter {
public:
    Highlighter(QTextDocument* text, const KeywordList& list) : QSyntaxHighlighter(text), m_list(list)
    {
        m_formats.resize(5);
        for (qsizetype i = 1; i < m_formats.size(); ++i)
            m_formats[i].setForeground(QColor::fromRgb(static_cast<QRgb>(0x304050 * i)));
    }

protected:
    void highlightBlock(const QString& line) override
    {
        const qsizetype comment = line.indexOf(QLatin1String("//"));
        const qsizetype end = comment < 0 ? line.size() : comment;
        for (qsizetype start = 0; start < end;) {
            qsizetype stop = line.indexOf(QLatin1Char(' '), start);
            stop = stop < 0 || stop > end ? end : stop;
            const int keyword = m_list.find(line.mid(start, stop - start).toStdString());
            if (keyword >= 0) {
                setFormat(static_cast<int>(start), static_cast<int>(stop - start),
                          m_formats[static_cast<qsizetype>(m_list.classAt(keyword))]);
            }
            start = stop + 1;
        }
        if (comment >= 0)
            setFormat(static_cast<int>(comment), static_cast<int>(line.size() - comment), m_formats[4]);
    }

private:
    const KeywordList& m_list;
    QList<QTextCharFormat> m_formats;
};

void syntaxHighlighter(benchmark::State& state)
{
    QPlainTextEdit editor;
    editor.setPlainText(QString::fromStdString(document()));
    for (auto _ : state) {
        Highlighter highlighter(editor.document(), keywords());
        highlighter.rehighlight();
    }
}
BENCHMARK(syntaxHighlighter)->Unit(benchmark::kMillisecond)->Iterations(1);

/// The median of 1,000 keystrokes, at start, middle and end.
void keystrokes(benchmark::State& state, std::size_t size)
{
    Editor editor(sampleConfig(size));
    editor.control.resize(800, 600);
    editor.control.show();
    colourBox(editor.box, keywords(), editor.settings);
    LiveColouring live(editor.box, keywords(), editor.settings);
    live.ColouringEnabled = true;

    std::vector<double> times;
    for (auto _ : state) {
        const Position length = editor.box.length();
        for (const Position place : {Position{0}, length / 2, length}) {
            editor.box.select(place, 0);
            editor.control.ensureCursorVisible();
            for (int key = 0; key < 334; ++key) {
                const double before = bench::processorTime();
                QTest::keyClick(&editor.control, key % 8 == 7 ? Qt::Key_Space : Qt::Key_A);
                times.push_back(bench::processorTime() - before);
            }
        }
        std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
        state.SetIterationTime(times[times.size() / 2]);
    }
}

void keystrokeLarge(benchmark::State& state)
{
    keystrokes(state, largeDocument);
}
BENCHMARK(keystrokeLarge)->UseManualTime()->Iterations(1)->Repetitions(3)->Unit(benchmark::kMicrosecond);

void keystrokeSmall(benchmark::State& state)
{
    keystrokes(state, smallDocument);
}
BENCHMARK(keystrokeSmall)->UseManualTime()->Iterations(1)->Repetitions(3)->Unit(benchmark::kMicrosecond);

KeywordList numberedKeywords(int count)
{
    std::string lines;
    for (int i = 0; i < count; ++i)
        lines += "keyword" + std::to_string(i * 7919 % 1000003) + "\r\n";
    KeywordList list;
    list.addLines(lines, KeywordClass::ConfigCommand);
    return list;
}

void lookUp(benchmark::State& state, int count)
{
    const KeywordList list = numberedKeywords(count);
    std::vector<std::string> words;
    for (int i = 0; i < 100; ++i)
        words.emplace_back(i % 2 ? std::string(list.textAt(i * (count / 100))) : "Absent" + std::to_string(i));
    for (auto _ : state) {
        for (const std::string& word : words)
            benchmark::DoNotOptimize(list.find(word));
    }
}

void lookUpIn100(benchmark::State& state)
{
    lookUp(state, 100);
}
BENCHMARK(lookUpIn100)->Repetitions(3);

void lookUpIn10000(benchmark::State& state)
{
    lookUp(state, 10'000);
}
BENCHMARK(lookUpIn10000)->Repetitions(3);

void loadTree(benchmark::State& state, int lines)
{
    std::string text;
    for (int i = 0; i < lines; ++i)
        text += std::string(static_cast<std::size_t>(i % 7 * 3), ' ') + "Entry" + std::to_string(i) + "\r\n";
    for (auto _ : state) {
        KeywordTree tree;
        addTreeLines(text, tree);
        benchmark::DoNotOptimize(tree.nodes().size());
    }
}

void loadTree10000(benchmark::State& state)
{
    loadTree(state, 10'000);
}
BENCHMARK(loadTree10000)->Unit(benchmark::kMillisecond)->Repetitions(3);

void loadTree100000(benchmark::State& state)
{
    loadTree(state, 100'000);
}
BENCHMARK(loadTree100000)->Unit(benchmark::kMillisecond)->Repetitions(3);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return bench::runAndCompare(
        argc, argv,
        {
            {"the control's own lexer / full pass", "ownLexer", "fullPass", 3, true},
            {"full pass / setting the styles alone", "fullPass", "setStylingAlone", 2.5, false},
            {"full pass on a coloured document / setting the styles alone", "fullPassAgain", "setStylingAlone", 2.5,
             false},
            {"full pass with new colours / setting the styles alone", "fullPassNewColours", "setStylingAlone", 2.5,
             false},
            {"QSyntaxHighlighter / full pass", "syntaxHighlighter", "fullPass", 10, true},
            {"keystroke in 11 MB / in 10 kB", "keystrokeLarge", "keystrokeSmall", 1.2, false},
            {"look-up among 10,000 keywords / among 100", "lookUpIn10000", "lookUpIn100", 3, false},
            {"100,000 tree lines / 10,000", "loadTree100000", "loadTree10000", 15, false},
        });
}
