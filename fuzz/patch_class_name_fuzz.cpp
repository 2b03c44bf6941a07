// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/config_scanner.h"
#include "support/input.h"
#include "support/target.h"
#include "text/letter_case.h"

namespace kitwright::fuzzing {

/// The input is a document.
void tryInput(std::string_view bytes)
{
    const std::string text = decoded(bytes);
    const std::string former = "two words";
    std::string name = former;
    ReadPatchClassName(text, name);

    std::string loudName = upperCased(former);
    ReadPatchClassName(upperCased(text), loudName);
    require(loudName == upperCased(name), "letter case does not matter");
    if (name == former)
        return;
    require(name.find_first_of(" \r\n") == name.npos, "a name is one word");
    require(text.find(name) != text.npos, "a name stands in the document");
    std::string again;
    ReadPatchClassName(text, again);
    require(again == name, "the former name does not matter");
}

} // namespace kitwright::fuzzing
