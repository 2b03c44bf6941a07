// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/fake_host.h"

#include "platform/windows_1250.h"

namespace kitwright::testing {

FakeContext::FakeContext() : codePage(windows1250()), texts(files, codePage)
{
    state.programFolder = "/program";
}

} // namespace kitwright::testing
