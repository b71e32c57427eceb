#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace tavrin::cli {

/// Says in one plain line what is wrong with a call, with the nearest right name for a wrong one; or prints the help
/// that was asked for.
/// @return the exit code
int explain(const CLI::App& app, const CLI::ParseError& error);

/// An option takes one of these words, and a wrong one is told with the nearest of them.
CLI::Validator oneOf(std::vector<std::string> words);
/// The same for an option with numbers; the first word stands for `first`, those behind it go on from there.
CLI::Validator numberedWords(std::vector<std::string> words, int first);
/// Shells offer these words for an option, which looks at its value by itself.
CLI::Validator offering(const std::vector<std::string>& words, bool takesFile);
/// A whole number, or any number, within these bounds.
CLI::Validator within(int low, int high);
CLI::Validator within(double low, double high);

/// What a shell offers behind an option.
struct Offer {
    std::string words;      ///< with a space between them
    bool takesFile = true;  ///< the name of a file may stand there as well
};
Offer offerOf(CLI::Option& option);

/// The long names of an option, with their hyphens, or its name where it has no hyphens.
std::vector<std::string> namesOf(const CLI::Option& option);

}  // namespace tavrin::cli
