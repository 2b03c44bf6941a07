// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/targets.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace kitwright::fuzzing {

/// The target whose name is in the environment. Ends the program when there is none.
const Target& chosenTarget()
{
    const char* const name = std::getenv("KITWRIGHT_FUZZ_TARGET");
    for (const Target& target : targets) {
        if (name && target.name == name)
            return target;
    }
    std::fprintf(stderr, "KITWRIGHT_FUZZ_TARGET has to name a folder of fuzz/corpus\n");
    std::exit(2);
}

} // namespace kitwright::fuzzing

/// What libFuzzer calls for each input that it makes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const kitwright::fuzzing::Target& target = kitwright::fuzzing::chosenTarget();
    target.tryInput({reinterpret_cast<const char*>(data), size});
    return 0;
}
