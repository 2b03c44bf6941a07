// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Runs a fuzz target where there is no libFuzzer: tries inputs from files, then changed ones made of them, the same
// in every run. When one of them ends the program, it is left in a file of the current folder.

#include "support/mutation.h"
#include "support/target.h"

#include <algorithm>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <unistd.h>

/// What the sanitizers find ends the program by a signal, too.
extern "C" const char* __asan_default_options()
{
    return "abort_on_error=1";
}
extern "C" const char* __ubsan_default_options()
{
    return "abort_on_error=1";
}

namespace kitwright::fuzzing {

namespace {

/// Apart from the rest of the program, for the moment of its end: the input that is being tried, and the file for it.
std::string tried;
std::string fileOfTried;

struct Options {
    unsigned rounds = 0;
    unsigned seed = 1;
    std::vector<std::string> words;
    std::vector<std::string> inputs;
};

void leaveTried()
{
    const int file = ::open(fileOfTried.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    const bool left = file >= 0 && ::write(file, tried.data(), tried.size()) == static_cast<ssize_t>(tried.size());
    std::fprintf(stderr, "The input, of %zu bytes, %s %s\n", tried.size(), left ? "is in" : "does not go into",
                 fileOfTried.c_str());
}

void endBySignal(int number)
{
    std::signal(number, SIG_DFL);
    leaveTried();
    std::raise(number);
}

void prepareForTheEnd(const std::filesystem::path& program)
{
    fileOfTried = (std::filesystem::current_path() / program.filename()).string() + ".input";
    std::filesystem::remove(fileOfTried);
    for (const int number : {SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL}) {
        const auto former = std::signal(number, endBySignal);
        // The sanitizers answer some of them themselves, by a report and SIGABRT.
        if (former != SIG_DFL)
            std::signal(number, former);
    }
}

std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    std::string content(std::istreambuf_iterator<char>(stream), {});
    if (!stream)
        throw std::runtime_error(path.string() + " cannot be read");
    return content;
}

/// The files of a folder in the order of their names, or the file itself.
std::vector<std::string> inputsOf(const std::filesystem::path& path)
{
    if (!std::filesystem::is_directory(path))
        return {contentOf(path)};
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(path))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<std::string> inputs;
    std::transform(files.begin(), files.end(), std::back_inserter(inputs), contentOf);
    return inputs;
}

unsigned numberOf(const std::string& text)
{
    unsigned number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (text.empty() || stop != end || error != std::errc())
        throw std::runtime_error('"' + text + "\" is no number");
    return number;
}

Options optionsOf(const std::vector<std::string>& arguments)
{
    Options options;
    for (auto at = arguments.begin(); at != arguments.end(); ++at) {
        if (!at->starts_with("--")) {
            for (std::string& input : inputsOf(*at))
                options.inputs.push_back(std::move(input));
            continue;
        }
        const std::string name = *at;
        if (++at == arguments.end())
            throw std::runtime_error(name + " of what?");
        if (name == "--rounds")
            options.rounds = numberOf(*at);
        else if (name == "--seed")
            options.seed = numberOf(*at);
        else if (name == "--dict")
            options.words = dictionaryWords(contentOf(*at));
        else
            throw std::runtime_error("there is no option " + name);
    }
    if (options.inputs.empty())
        throw std::runtime_error("no input to start from");
    return options;
}

/// An exception that leaves a target ends the program, like everything else that a target must not do.
void tryOne(std::string input) noexcept
{
    tried = std::move(input);
    tryInput(tried);
}

void run(const Options& options)
{
    for (const std::string& input : options.inputs)
        tryOne(input);
    Mutator mutator(options.inputs, options.words, options.seed);
    for (unsigned round = 0; round < options.rounds; ++round)
        tryOne(mutator.next());
    std::printf("%zu inputs and %u made of them by seed %u, nothing found\n", options.inputs.size(), options.rounds,
                options.seed);
}

} // namespace

} // namespace kitwright::fuzzing

/// <what>_fuzz [--rounds N] [--seed S] [--dict FILE] FOLDER_OR_FILE...: N rounds, none when not told. Ends with 2
/// when it is called wrongly.
int main(int argc, char* argv[])
{
    using namespace kitwright::fuzzing;
    try {
        const Options options = optionsOf({argv + 1, argv + argc});
        prepareForTheEnd(argv[0]);
        run(options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
        return 2;
    }
    return 0;
}
