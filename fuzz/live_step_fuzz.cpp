// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/live_step.h"

#include "app/colouring.h"
#include "app/live_colouring.h"
#include "support/input.h"
#include "support/keywords.h"
#include "support/string_text_box.h"
#include "support/target.h"
#include "text/letter_case.h"

#include <set>

namespace kitwright::fuzzing {

namespace {

const KeywordList& keywordsOfAll()
{
    static const KeywordList keywords = sampleKeywords();
    return keywords;
}

/// Whatever the caret stands behind, a step stays in the text and, when it looks a word up, in that word.
void checkSteps(const std::string& text)
{
    const StringTextBox box(text);
    for (Position caret = 0; caret <= box.length(); ++caret) {
        for (const bool inComment : {false, true}) {
            const LiveStep step = liveStep(TextView(box), caret, inComment);
            require(step.start + step.length <= box.length(), "a step stays in the text");
            const std::string_view range = box.range(step.start, step.length);
            require(step.kind != LiveStep::Kind::Word || range.find_first_of(" \r\n") == range.npos,
                    "a step stays in one word");
        }
    }
}

/// Once all of it is coloured, nobody sees whether a text was typed or pasted.
void checkTyping(const std::string& text)
{
    const EditorSettings settings = distinctStyles();
    StringTextBox pasted(text);
    StringTextBox typed;
    {
        LiveColouring live(typed, keywordsOfAll(), settings);
        live.ColouringEnabled = true;
        typed.type(text);
    }
    require(upperCased(typed.text()) == upperCased(text), "typing changes nothing but letter case");
    colourBox(typed, keywordsOfAll(), settings);
    colourBox(pasted, keywordsOfAll(), settings);
    const StyleMap styles = colourText(text, keywordsOfAll(), settings).styles;
    for (Position place = 0; place < text.size(); ++place)
        require(styles.entries[place] == StyleMap::keep || typed.styleAt(place) == pasted.styleAt(place),
                "what was typed is coloured like what was pasted");
}

/// An author at work on a document, with a model that knows the text but for letter case.
class Author {
public:
    explicit Author(const std::string& text)
    {
        m_live.ColouringEnabled = true;
        load(text);
    }

    /// Does what a piece says: its first character is the command, the rest what the command is about.
    void act(std::string_view piece)
    {
        const std::string_view rest = piece.substr(std::min<std::size_t>(1, piece.size()));
        switch (piece.empty() ? '\0' : piece.front()) {
        case '@':
            return goTo(rest);
        case '-':
            return erase(rest.size() + 1);
        case '+':
            return edit([&] { m_box.replaceSelection(decoded(rest)); }, m_box.selection(), decoded(rest));
        case '=':
            return replaceElsewhere(rest);
        case '<':
            return undo();
        case '*':
            return check([&] { colourAll(); });
        case '!':
            m_settings.KeywordColouringOff = !m_settings.KeywordColouringOff;
            return;
        case '#':
            return load(decoded(rest));
        default:
            return type(decoded(piece));
        }
    }

    void undoAll()
    {
        while (m_box.undoSteps() > 0)
            undo();
    }

private:
    void load(const std::string& text)
    {
        m_box.loadText(text);
        m_model = text;
        m_seen = {text};
    }

    /// The place, from 0, that a byte stands for.
    Position place(std::string_view bytes, std::size_t index) const
    {
        const Position part = index < bytes.size() ? static_cast<unsigned char>(bytes[index]) : 0U;
        return characterStart(m_model, m_model.size() * part / 255);
    }

    /// Selects up to three characters.
    void goTo(std::string_view where)
    {
        const Position start = place(where, 0);
        const std::size_t length = where.size() > 1 ? static_cast<unsigned char>(where[1]) % 4 : 0;
        m_box.select(start, characterStart(m_model, start + length) - start);
    }

    void type(const std::string& text)
    {
        for (const std::string_view key : characters(text)) {
            edit([&] { m_box.type(key); }, m_box.selection(), std::string(key));
            require(m_box.selection().length == 0, "nothing is selected behind what was typed");
        }
    }

    void erase(std::size_t length)
    {
        const Position caret = m_box.caret();
        const Position start = characterStart(m_model, caret - std::min(caret, length));
        m_box.select(start, caret - start);
        edit([&] { m_box.replaceSelection({}); }, m_box.selection(), {});
    }

    /// As the program itself edits, wherever the caret stands.
    void replaceElsewhere(std::string_view rest)
    {
        const Position start = std::min(place(rest, 0), place(rest, 1));
        const Selection range{start, std::max(place(rest, 0), place(rest, 1)) - start};
        const std::string text = decoded(rest.substr(std::min<std::size_t>(2, rest.size())));
        m_model.replace(range.start, range.length, text);
        check([&] {
            m_live.hold();
            m_box.replaceRange(range.start, range.length, text);
            m_live.release();
        });
    }

    void colourAll()
    {
        m_live.hold();
        colourBox(m_box, m_keywords, m_settings);
        m_live.release();
    }

    template <class Action>
    void edit(const Action& action, Selection replaced, const std::string& text)
    {
        m_model.replace(replaced.start, replaced.length, text);
        check(action);
        require(m_box.caret() == replaced.start + text.size(), "the caret stands behind what was typed");
    }

    template <class Action>
    void check(const Action& action)
    {
        action();
        require(upperCased(m_box.text()) == upperCased(m_model), "the author's text is in the document");
        m_model = m_box.text();
        m_seen.insert(m_model);
    }

    void undo()
    {
        m_box.undo();
        m_model = m_box.text();
        require(m_seen.contains(m_model), "undo shows only texts that an action made");
    }

    StringTextBox m_box;
    const KeywordList& m_keywords = keywordsOfAll();
    EditorSettings m_settings = distinctStyles();
    LiveColouring m_live{m_box, m_keywords, m_settings};
    std::string m_model;
    std::set<std::string> m_seen; ///< Every text that an action led to.
};

} // namespace

/// The first piece is a document, the others are what its author does.
void tryInput(std::string_view bytes)
{
    Pieces pieces(bytes);
    const std::string document = pieces.text();
    // Each caret, and each key, costs a look at the whole text.
    constexpr std::size_t small = 256;
    if (document.size() <= small) {
        checkSteps(document);
        checkTyping(document);
    }
    Author author(document);
    while (pieces.areLeft())
        author.act(pieces.bytes());
    author.undoAll();
}

} // namespace kitwright::fuzzing
