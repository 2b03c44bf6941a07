// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/target.h"

#include <cstdio>
#include <cstdlib>

namespace kitwright::fuzzing {

void require(bool kept, const char* promise)
{
    if (kept)
        return;
    std::fprintf(stderr, "Not kept: %s\n", promise);
    std::abort();
}

} // namespace kitwright::fuzzing
