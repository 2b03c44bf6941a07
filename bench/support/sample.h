// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/keyword_list.h"

#include <cstddef>
#include <string>

namespace kitwright::bench {

/// A `config.cpp` of about so many bytes as an author writes it: classes, properties, arrays and Czech comments.
std::string sampleConfig(std::size_t bytes);

/// The shipped keywords with the built-in ones.
KeywordList shippedKeywords();

} // namespace kitwright::bench
