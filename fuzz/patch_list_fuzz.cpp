// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/patch_list.h"

#include "support/input.h"
#include "support/string_text_box.h"
#include "support/target.h"
#include "text/find_text.h"

namespace kitwright::fuzzing {

namespace {

/// Watches that an edit only ever puts the item behind a brace of the block.
class InsertionWatch final : public TextObserver {
public:
    explicit InsertionWatch(StringTextBox& box) : m_box(box)
    {
        const std::size_t block = findIgnoringCase(box.text(), "CFGPATCHES");
        m_first = block == std::string_view::npos ? 0 : block;
        box.setObserver(this);
    }
    ~InsertionWatch() override { m_box.setObserver(nullptr); }
    InsertionWatch(const InsertionWatch&) = delete;
    InsertionWatch& operator=(const InsertionWatch&) = delete;

    std::string item;
    std::size_t insertions = 0;

    bool willEditAfter(const PendingEdit& edit) override
    {
        require(edit.removed == 0, "nothing is taken out of the document");
        require(edit.inserted == item || edit.inserted == item + ",", "nothing but the item is inserted");
        require(edit.start > m_first && m_box.at(edit.start - 1) == '{', "the item stands in front in a list");
        ++insertions;
        return false;
    }

    void textChanged(ChangeOrigin) override {}

private:
    StringTextBox& m_box;
    Position m_first = 0;
};

} // namespace

/// The first piece is a document, the others are classes that are put into its list of weapons.
void tryInput(std::string_view bytes)
{
    Pieces pieces(bytes);
    const std::string text = pieces.text();
    StringTextBox box(text);
    {
        InsertionWatch watch(box);
        while (pieces.areLeft()) {
            watch.item = pieces.text();
            const std::size_t before = watch.insertions;
            const Position length = box.length();
            AddToPatchList(box, "weapons[]", watch.item);
            require(watch.item.empty() || watch.insertions > before || box.length() == length,
                    "the document grows by insertions alone");
        }
    }
    while (box.undoSteps() > 0)
        box.undo();
    require(box.text() == text, "undo brings the document back");

    // All at once comes to the same as one after the other.
    StringTextBox together(text);
    StringTextBox single(text);
    const std::vector<std::string> items = {"First", "Second"};
    AddToPatchList(together, "units[]", std::span(items));
    for (const std::string& item : items)
        AddToPatchList(single, "units[]", item);
    require(together.text() == single.text(), "several classes are put in like one after the other");
}

} // namespace kitwright::fuzzing
