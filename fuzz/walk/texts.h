// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "chance.h"

#include <string>

namespace kitwright::walking {

/// What an author types, pastes and answers; all of it UTF-8. Most of it makes sense, the rest is what nobody expects.

/// A few letters or words for any box.
std::string typedText(Chance& chance);

/// Lines of a document with any line ends, as they come from other programs.
std::string pastedText(Chance& chance);

/// A name of a class, key, add-on or version.
std::string nameText(Chance& chance);

/// A value of a property: a number, a text, or a path of a file that may exist.
std::string valueText(Chance& chance);

/// A path for a document that is saved.
std::string savePath(Chance& chance);

/// A path to open: a document, a model or a picture, now and then one that is not there.
std::string openPath(Chance& chance, bool document);

} // namespace kitwright::walking
