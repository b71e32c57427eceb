#include "apps/cli/Completion.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <sstream>

#include "apps/cli/Console.h"
#include "apps/cli/Usage.h"

namespace tavrin::cli {

namespace {

using Commands = std::vector<CLI::App*>;

Commands commandsIn(CLI::App& app) {
    return app.get_subcommands([](CLI::App*) { return true; });
}

bool takesValue(const CLI::Option& option) {
    return option.get_expected_max() > 0;
}

std::string joined(const std::vector<std::string>& words, const char* between) {
    std::string all;
    for (const std::string& word : words)
        all += (all.empty() ? "" : between) + word;
    return all;
}

/// The text with each of these characters escaped.
std::string escaped(const std::string& text, const std::string& characters, const std::string& escape = "\\") {
    std::string result;
    for (const char c : text) {
        if (characters.find(c) != std::string::npos) result += escape;
        result += c;
    }
    return result;
}

/// Every command with the words that lead to it; the program itself has none.
template <class Visit>
void walk(CLI::App& app, const std::string& path, const Visit& visit) {
    visit(app, path);
    for (CLI::App* command : commandsIn(app))
        walk(*command, (path.empty() ? "" : path + " ") + command->get_name(), visit);
}

std::vector<std::string> optionNames(CLI::App& app, bool onlyWithValue) {
    std::vector<std::string> names;
    for (CLI::Option* option : app.get_options()) {
        if (option->get_positional() || (onlyWithValue && !takesValue(*option))) continue;
        for (const std::string& name : namesOf(*option))
            names.push_back(name);
    }
    return names;
}

// Behind an option with a value its words are completed, or files; so are files where no option begins.
std::string bashScript(CLI::App& app) {
    std::ostringstream out;
    out << "# bash completion for tavrin-cli\n_tavrin_cli() {\n"
           "    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}\n"
           "    local path= names= valued= words= part\n"
           "    for part in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
           "        case \"$path $part\" in\n";
    walk(app, "", [&](CLI::App&, const std::string& path) {
        if (!path.empty()) out << "            \" " << path << "\") path=' " << path << "' ;;\n";
    });
    out << "        esac\n    done\n    case \"$path\" in\n";
    walk(app, "", [&](CLI::App& command, const std::string& path) {
        std::vector<std::string> names = optionNames(command, false);
        for (const CLI::App* inside : commandsIn(command))
            names.push_back(inside->get_name());
        out << "        '" << (path.empty() ? "" : " " + path) << "') names='" << joined(names, " ") << "' valued=' "
            << joined(optionNames(command, true), " ") << " ' ;;\n";
    });
    out << "    esac\n    case \"$path $before\" in\n";
    walk(app, "", [&](CLI::App& command, const std::string& path) {
        for (CLI::Option* option : command.get_options()) {
            const std::string words = offerOf(*option).words;
            if (words.empty() || option->get_positional()) continue;
            for (const std::string& name : namesOf(*option))
                out << "        ' " << path << " " << name << "') words='" << words << "' ;;\n";
        }
    });
    out << "    esac\n"
           "    if [[ $valued != *\" $before \"* ]]; then words=$names; fi\n"
           "    COMPREPLY=($(compgen -W \"$words\" -- \"$word\"))\n"
           "}\ncomplete -o default -F _tavrin_cli tavrin-cli\n";
    return out.str();
}

/// What comes behind an option, as zsh tells it.
std::string zshValue(CLI::Option& option) {
    const Offer offer = offerOf(option);
    if (offer.words.empty()) return ":value:_files";
    return offer.takesFile ? ":value: _tavrin_words_or_files " + offer.words : ":value:(" + offer.words + ")";
}

// The words before the last command are taken off, since zsh counts the places from the first.
std::string zshScript(CLI::App& app) {
    std::ostringstream out;
    out << "#compdef tavrin-cli\n_tavrin_words_or_files() { compadd -- \"$@\"; _files; }\n_tavrin_cli() {\n    local "
           "path=\n    local -i at=0 last=0\n"
           "    for (( at = 2; at < CURRENT; ++at )); do\n        case \"$path $words[at]\" in\n";
    walk(app, "", [&](CLI::App&, const std::string& path) {
        if (!path.empty()) out << "            \" " << path << "\") path=' " << path << "' last=at ;;\n";
    });
    out << "        esac\n    done\n"
           "    if (( last )); then words=(\"${(@)words[last,-1]}\"); (( CURRENT -= last - 1 )); fi\n"
           "    case \"$path\" in\n";
    walk(app, "", [&](CLI::App& command, const std::string& path) {
        out << "        '" << (path.empty() ? "" : " " + path) << "') _arguments";
        for (CLI::Option* option : command.get_options()) {
            if (option->get_positional()) continue;
            for (const std::string& name : namesOf(*option)) {
                out << " '" << name << "[" << escaped(escaped(option->get_description(), "[]"), "'", "'\\'") << "]"
                    << (takesValue(*option) ? zshValue(*option) : "") << "'";
            }
        }
        std::vector<std::string> names;
        for (const CLI::App* inside : commandsIn(command))
            names.push_back(inside->get_name());
        out << (names.empty() ? " '*:file:_files'" : " '1:command:(" + joined(names, " ") + ")'") << " ;;\n";
    });
    out << "    esac\n}\n_tavrin_cli \"$@\"\n";
    return out.str();
}

std::string fishScript(CLI::App& app) {
    std::ostringstream out;
    out << "# fish completion for tavrin-cli\n";
    walk(app, "", [&](CLI::App& command, const std::string& path) {
        std::string when = "__fish_use_subcommand", word;
        std::istringstream words(path);
        if (!path.empty()) when.clear();
        while (words >> word)
            when += (when.empty() ? "" : "; and ") + std::string("__fish_seen_subcommand_from ") + word;
        const std::string start = "complete -c tavrin-cli -n '" + when + "'";
        for (const CLI::App* inside : commandsIn(command))
            out << start << " -f -a " << inside->get_name() << " -d '" << escaped(inside->get_description(), "'\\")
                << "'\n";
        for (CLI::Option* option : command.get_options()) {
            if (option->get_positional()) continue;
            out << start;
            for (const std::string& name : option->get_lnames())
                out << " -l " << name;
            for (const std::string& name : option->get_snames())
                out << " -s " << name;
            const Offer offer = offerOf(*option);
            out << (!takesValue(*option) ? ""
                    : offer.takesFile    ? " -r"
                                         : " -x")
                << (offer.words.empty() ? "" : " -a '" + offer.words + "'") << " -d '"
                << escaped(option->get_description(), "'\\") << "'\n";
        }
    });
    return out.str();
}

/// A text as the manual page's language takes it.
std::string roff(const std::string& text) {
    std::istringstream lines(escaped(escaped(text, "\\"), "-"));
    std::string result;
    for (std::string line; std::getline(lines, line);)
        result += (line.starts_with('.') || line.starts_with('\'') ? "\\&" : "") + line + "\n";
    return result;
}

std::string manualPage(CLI::App& app) {
    std::ostringstream out;
    out << ".TH TAVRIN\\-CLI 1\n.SH NAME\ntavrin\\-cli \\- green\\-screen pictures on the command line\n"
           ".SH SYNOPSIS\n.B tavrin\\-cli\n.I command\n[options]\n.SH DESCRIPTION\n"
        << roff(app.get_description());
    walk(app, "", [&](CLI::App& command, const std::string& path) {
        if (path.empty()) {
            out << ".SH OPTIONS\n";
        } else {
            out << ".SH \"COMMAND " << roff(path).substr(0, roff(path).size() - 1) << "\"\n"
                << roff(command.get_description());
        }
        for (CLI::Option* option : command.get_options()) {
            const std::string names = joined(namesOf(*option), ", ");
            out << ".TP\n.B " << roff(names + (takesValue(*option) && !option->get_positional() ? " value" : ""))
                << roff(option->get_description());
        }
        if (!command.get_footer().empty()) out << ".PP\n.nf\n" << roff(command.get_footer()) << ".fi\n";
    });
    return out.str();
}

int print(CLI::App& app, const std::string& shell) {
    const std::string text = shell == "bash"   ? bashScript(app)
                             : shell == "zsh"  ? zshScript(app)
                             : shell == "fish" ? fishScript(app)
                                               : manualPage(app);
    std::fputs(text.c_str(), stdout);
    return kDone;
}

}  // namespace

void addCompletionCommand(CLI::App& app, int& result) {
    const auto shell = std::make_shared<std::string>();
    CLI::App* command = app.add_subcommand("completion", "Print what a shell completes with, or the manual page");
    command->add_option("shell", *shell, "bash, zsh, fish, or man for the manual page")
        ->required()
        ->check(oneOf({"bash", "zsh", "fish", "man"}));
    command->footer(
        "\nExamples:\n  tavrin-cli completion bash > ~/.local/share/bash-completion/completions/tavrin-cli\n"
        "  tavrin-cli completion fish > ~/.config/fish/completions/tavrin-cli.fish\n"
        "  tavrin-cli completion man > ~/.local/share/man/man1/tavrin-cli.1");
    command->callback([&app, shell, &result] { result = print(app, *shell); });
}

}  // namespace tavrin::cli
