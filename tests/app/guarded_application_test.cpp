// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/guarded_application.h"

#include <gtest/gtest.h>

#include <new>

namespace kitwright {

TEST(Guarded, HandlersEndWithoutTheProgram)
{
    EXPECT_TRUE(guarded([] { return true; }));
    EXPECT_FALSE(guarded([]() -> bool { throw std::bad_alloc(); }));
    EXPECT_FALSE(guarded([]() -> bool { throw 1; })); // NOLINT(hicpp-exception-baseclass)
}

} // namespace kitwright
