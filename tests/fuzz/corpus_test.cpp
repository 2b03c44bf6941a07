// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/targets.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace kitwright::fuzzing {

struct Corpus : ::testing::TestWithParam<Target> {};

INSTANTIATE_TEST_SUITE_P(Of, Corpus, ::testing::ValuesIn(targets),
                         [](const auto& target) { return std::string(target.param.name); });

/// Each input on which a fuzzer once found something, and those that it starts from.
TEST_P(Corpus, KeepsWhatTheTargetPromises)
{
    int inputs = 0;
    const std::filesystem::path folder = KITWRIGHT_TOP "/fuzz/corpus";
    for (const auto& entry : std::filesystem::directory_iterator(folder / GetParam().name)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes(std::istreambuf_iterator<char>(file), {});
        EXPECT_NO_THROW(GetParam().tryInput(bytes)) << entry.path();
        ++inputs;
    }
    EXPECT_GT(inputs, 0);
}

} // namespace kitwright::fuzzing
