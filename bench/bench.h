// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/keyword_list.h"

#include <functional>
#include <string>
#include <vector>

namespace kitwright::bench {

/// Processor time of this thread that the work takes, in seconds.
double timeOf(const std::function<void()>& work);

/// Runs the cases in turns, so that a busy minute of the machine falls on all of them; each returns the time that it
/// took. The smallest time of each: other work on the machine does not count.
std::vector<double> quickest(int rounds, const std::vector<std::function<double()>>& cases);

/// Prints a row of the table: what was seen keeps the promise when it is not above the limit.
void promise(double limit, const std::string& what, double seen);

inline constexpr std::size_t largeDocument = 11'000'000;

/// The shipped keywords with the built-in ones.
const KeywordList& keywords();

/// A `config.cpp` of about so many bytes as an author writes it: classes, properties, arrays and Czech comments.
std::string sampleConfig(std::size_t bytes);

/// The text with every third of its keywords in another letter case.
std::string misspelt(std::string text);

/// About so many bytes in which every line begins with a keyword, each with another one.
std::string denseConfig(std::size_t bytes);

void measureMemory();
void measureColouring();
void measureLists();
void measureKeys();
void measureOpening();
void measureWizards();

} // namespace kitwright::bench
