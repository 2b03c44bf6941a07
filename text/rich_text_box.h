// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// A place in a document: the number of bytes of its UTF-8 text in front of it, from 0. CR and LF count one each.
using Position = std::size_t;

/// How a character is drawn. The colour is 0x00BBGGRR.
struct TextStyle {
    std::uint32_t colour = 0;
    bool bold = false;
    bool italic = false;

    friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

/// A range of the text; the caret stands at `start` or at `start + length`.
struct Selection {
    Position start = 0;
    Position length = 0;

    friend bool operator==(const Selection&, const Selection&) = default;
};

/// The styles of a piece of text: `entries` holds one byte for each byte of it, an index into `palette`, or `keep`
/// where the text keeps the style that it has.
struct StyleMap {
    static constexpr char keep = '\xFF';

    std::vector<TextStyle> palette;
    std::string entries;
};

/// A place in the text that gets another spelling of the same length.
struct Respelling {
    Position start = 0;
    std::string_view spelling;
};

/// A change about to happen: `removed` bytes from `start` go, then `inserted` comes in their place.
struct PendingEdit {
    Position start = 0;
    Position removed = 0;
    std::string_view inserted;
};

/// What set a change off.
enum class ChangeOrigin {
    Edit,     ///< Typing, pasting, deleting, or an edit of the program.
    UndoRedo, ///< The undo history brought an earlier or later text back.
};

/// Hears of the changes of a box's text.
class TextObserver {
public:
    virtual ~TextObserver() = default;

    /// Asked before an edit: true when the answer to it, in `textChanged`, will edit the text too, so that both
    /// become one undo step. The box still holds the text before the edit; nothing may be changed here.
    virtual bool willEditAfter(const PendingEdit& edit) = 0;

    /// Told after a change, when the box can be edited again, and before the next event of the user.
    virtual void textChanged(ChangeOrigin origin) = 0;
};

/// The editing control as the program's logic sees it. A range that reaches outside the text is cut to it.
class RichTextBox {
public:
    virtual ~RichTextBox() = default;

    virtual Position length() const = 0;

    /// The whole text without a copy; valid until the next edit.
    virtual std::string_view text() const = 0;

    /// The byte behind `position`, or '\0' outside the text. Costs the same in a text of any length.
    virtual char at(Position position) const = 0;

    /// A range without a copy of the text; valid until the next edit. Cheap for ranges that lie close together.
    virtual std::string_view range(Position start, Position length) const = 0;

    /// Replaces the whole text, as one undo step.
    virtual void setText(std::string_view text) = 0;

    /// Takes a text that was just opened: nothing undoes past it, all of it plain, the caret in front.
    virtual void loadText(std::string_view text) = 0;

    virtual Position caret() const = 0;
    virtual Selection selection() const = 0;

    /// Selects a range and puts the caret behind it.
    virtual void select(Position start, Position length) = 0;

    /// Replaces what is selected, or inserts at the caret; the caret ends behind the text.
    virtual void replaceSelection(std::string_view text) = 0;

    /// Replaces a range; caret and selection stay on the characters that they stood on.
    virtual void replaceRange(Position start, Position length, std::string_view text) = 0;

    /// Writes words in other spellings. Caret, selection and styles stay; one undo step, and one change to observers.
    virtual void respell(std::span<const Respelling> words) = 0;

    virtual TextStyle styleAt(Position position) const = 0;

    /// Styles a range. Not an edit: undo does not see it and no observer hears of it.
    virtual void styleRange(Position start, Position length, const TextStyle& style) = 0;

    /// As `styleRange`, for as many bytes from `start` on as the map has entries; the text must hold them.
    virtual void applyStyles(Position start, const StyleMap& styles) = 0;

    /// Edits between the two are undone together; pairs may nest. See `UndoStep`.
    virtual void beginUndoStep() = 0;
    virtual void endUndoStep() = 0;

    /// At most one observer, not owned; nullptr takes it away.
    virtual void setObserver(TextObserver* observer) = 0;
};

/// Makes the edits of its scope one undo step.
class UndoStep {
public:
    explicit UndoStep(RichTextBox& box) : m_box(box) { m_box.beginUndoStep(); }
    ~UndoStep() { m_box.endUndoStep(); }
    UndoStep(const UndoStep&) = delete;
    UndoStep& operator=(const UndoStep&) = delete;

private:
    RichTextBox& m_box;
};

} // namespace kitwright
