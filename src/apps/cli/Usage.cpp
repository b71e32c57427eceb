#include "apps/cli/Usage.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <sstream>

#include "apps/cli/Console.h"
#include "core/NearestName.h"

namespace tavrin::cli {

namespace {

std::string inQuotes(const std::string& text) {
    return "\"" + text + "\"";
}

std::string didYouMean(const std::string& wrong, const std::vector<std::string>& names) {
    const std::string nearest = nearestName(wrong, names);
    return nearest.empty() ? "." : "; did you mean " + nearest + "?";
}

/// The command that the call got to.
const CLI::App& commandOf(const CLI::App& app) {
    const std::vector<CLI::App*> called = app.get_subcommands();
    return called.empty() ? app : commandOf(*called.back());
}

std::vector<std::string> optionsOf(const CLI::App& command) {
    std::vector<std::string> names;
    for (const CLI::Option* option : command.get_options()) {
        for (const std::string& name : option->get_lnames())
            names.push_back("--" + name);
    }
    return names;
}

std::vector<std::string> commandsOf(const CLI::App& command) {
    std::vector<std::string> names;
    for (const CLI::App* inside : command.get_subcommands([](const CLI::App*) { return true; }))
        names.push_back(inside->get_name());
    return names;
}

/// The first word that nothing takes, an option before others; "" when there is none.
std::string unknownWord(const CLI::App& app) {
    const std::vector<std::string> words = app.remaining(true);
    const auto option = std::find_if(words.begin(), words.end(),
                                     [](const std::string& word) { return word.size() > 1 && word[0] == '-'; });
    if (option != words.end()) return *option;
    return words.empty() ? std::string() : words.front();
}

std::string explainUnknown(const CLI::App& command, const std::string& word) {
    if (word[0] == '-') {
        const std::string option = word.substr(0, word.find('='));
        return "There is no option " + option + didYouMean(option, optionsOf(command));
    }
    const std::vector<std::string> commands = commandsOf(command);
    if (!commands.empty()) return "There is no command " + word + didYouMean(word, commands);
    return inQuotes(word) + " is one word too many.";
}

std::string firstWord(const std::string& text) {
    return text.substr(0, text.find_first_of(": "));
}

std::string explainMissing(const CLI::App& command, const std::string& told) {
    if (told.find("subcommand") == std::string::npos) return firstWord(told) + " is missing.";
    std::string names;
    for (const std::string& name : commandsOf(command))
        names += (names.empty() ? "" : ", ") + name;
    return "A command is missing: " + names + ".";
}

/// "Could not convert: NAME = VALUE"
std::string explainNumber(const std::string& told) {
    const std::size_t colon = told.find(": "), equals = told.find(" = ");
    if (colon == std::string::npos || equals == std::string::npos) return told + ".";
    return told.substr(colon + 2, equals - colon - 2) + " takes a number, not " + inQuotes(told.substr(equals + 3)) +
           ".";
}

/// "ONE excludes OTHER", "ONE requires OTHER"
std::string explainPair(const std::string& told, const std::string& verb, bool together) {
    const std::size_t at = told.find(" " + verb + " ");
    if (at == std::string::npos) return told + ".";
    const std::string one = told.substr(0, at), other = told.substr(at + verb.size() + 2);
    return together ? one + " needs " + other + "." : one + " and " + other + " do not go together.";
}

std::string describe(const CLI::App& app, const CLI::ParseError& error) {
    const CLI::App& command = commandOf(app);
    const std::string told = error.what(), kind = error.get_name();
    // The words that nothing takes come first: what is missing may be one of them.
    if (const std::string word = unknownWord(app); !word.empty()) return explainUnknown(command, word);
    if (kind == "RequiredError") return explainMissing(command, told);
    if (kind == "ExcludesError") return explainPair(told, "excludes", false);
    if (kind == "RequiresError") return explainPair(told, "requires", true);
    if (kind == "ConversionError") return explainNumber(told);
    if (kind == "ArgumentMismatch") return firstWord(told) + " needs a value.";
    return told;
}

std::string wrongWord(const std::string& word, const std::vector<std::string>& words) {
    std::string all;
    for (const std::string& known : words)
        all += (all.empty() ? "" : ", ") + known;
    return "there is no " + inQuotes(word) + "; did you mean " + nearestName(word, words) + "? It takes " + all + ".";
}

constexpr const char* kOrFile = " /";

/// The words as the name of a check, from which `offerOf` reads them.
std::string nameOfWords(const std::vector<std::string>& words) {
    std::string all;
    for (const std::string& word : words)
        all += (all.empty() ? "" : " ") + word;
    return all;
}

template <class Number>
std::string written(Number number) {
    std::ostringstream text;
    text << number;
    return text.str();
}

template <class Number>
CLI::Validator numberWithin(Number low, Number high, const char* kind) {
    return CLI::Validator(
        [low, high, kind](std::string& text) {
            Number number{};
            const char* const last = text.data() + text.size();
            const auto [end, problem] = std::from_chars(text.data(), last, number);
            if (problem == std::errc() && end == last && number >= low && number <= high) return std::string();
            return std::string("it takes ") + kind + " from " + written(low) + " to " + written(high) + ", not " +
                   inQuotes(text) + ".";
        },
        "");
}

}  // namespace

CLI::Validator oneOf(std::vector<std::string> words) {
    const std::string name = nameOfWords(words);
    return CLI::Validator(
        [words = std::move(words)](std::string& word) {
            const bool known = std::find(words.begin(), words.end(), word) != words.end();
            return known ? std::string() : wrongWord(word, words);
        },
        "", name);
}

CLI::Validator offering(const std::vector<std::string>& words, bool takesFile) {
    return CLI::Validator([](std::string&) { return std::string(); }, "",
                          nameOfWords(words) + (takesFile ? kOrFile : ""));
}

CLI::Validator numberedWords(std::vector<std::string> words, int first) {
    const std::string name = nameOfWords(words);
    return CLI::Validator(
        [words = std::move(words), first](std::string& word) {
            const auto known = std::find(words.begin(), words.end(), word);
            if (known == words.end()) return wrongWord(word, words);
            word = std::to_string(first + (known - words.begin()));
            return std::string();
        },
        "", name);
}

CLI::Validator within(int low, int high) {
    return numberWithin(low, high, "a whole number");
}

CLI::Validator within(double low, double high) {
    return numberWithin(low, high, "a number");
}

Offer offerOf(CLI::Option& option) {
    Offer offer;
    try {
        offer.words = option.get_validator(0)->get_name();
    } catch (const CLI::OptionNotFound&) {
    }
    const std::string orFile = kOrFile;
    offer.takesFile = offer.words.empty() || offer.words.ends_with(orFile);
    if (offer.words.ends_with(orFile)) offer.words.resize(offer.words.size() - orFile.size());
    return offer;
}

std::vector<std::string> namesOf(const CLI::Option& option) {
    std::vector<std::string> names;
    for (const std::string& name : option.get_lnames())
        names.push_back("--" + name);
    for (const std::string& name : option.get_snames())
        names.push_back("-" + name);
    if (names.empty()) names.push_back(option.get_name());
    return names;
}

int explain(const CLI::App& app, const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) {
        std::ostringstream help, ignored;
        app.exit(error, help, ignored);
        std::fputs(help.str().c_str(), stdout);
        return kDone;
    }
    complain(describe(app, error));
    return kUsage;
}

}  // namespace tavrin::cli
