#include "apps/cli/Completion.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <sstream>

#include "apps/cli/Console.h"
#include "apps/cli/Usage.h"

namespace tavrin::cli {

namespace {

using Commands = std::vector<const CLI::App*>;

Commands commandsIn(const CLI::App& app) {
    return app.get_subcommands([](const CLI::App*) { return true; });
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
void walk(const CLI::App& app, const std::string& path, const Visit& visit) {
    visit(app, path);
    for (const CLI::App* command : commandsIn(app))
        walk(*command, (path.empty() ? "" : path + " ") + command->get_name(), visit);
}

std::vector<std::string> optionNames(const CLI::App& app, bool onlyWithValue) {
    std::vector<std::string> names;
    for (const CLI::Option* option : app.get_options()) {
        if (option->get_positional() || (onlyWithValue && !takesValue(*option))) continue;
        for (const std::string& name : namesOf(*option))
            names.push_back(name);
    }
    return names;
}

// Behind an option with a value, and where no option begins, files are completed.
std::string bashScript(const CLI::App& app) {
    std::ostringstream out;
    out << "# bash completion for tavrin-cli\n_tavrin_cli() {\n"
           "    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} path= names= valued= part\n"
           "    for part in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
           "        case \"$path $part\" in\n";
    walk(app, "", [&](const CLI::App&, const std::string& path) {
        if (!path.empty()) out << "            \" " << path << "\") path=' " << path << "' ;;\n";
    });
    out << "        esac\n    done\n    case \"$path\" in\n";
    walk(app, "", [&](const CLI::App& command, const std::string& path) {
        std::vector<std::string> names = optionNames(command, false);
        for (const CLI::App* inside : commandsIn(command))
            names.push_back(inside->get_name());
        out << "        '" << (path.empty() ? "" : " " + path) << "') names='" << joined(names, " ") << "' valued=' "
            << joined(optionNames(command, true), " ") << " ' ;;\n";
    });
    out << "    esac\n"
           "    if [[ $valued != *\" $before \"* ]]; then COMPREPLY=($(compgen -W \"$names\" -- \"$word\")); fi\n"
           "}\ncomplete -o default -F _tavrin_cli tavrin-cli\n";
    return out.str();
}

std::string zshScript(const CLI::App& app) {
    std::ostringstream out;
    out << "#compdef tavrin-cli\n_tavrin_cli() {\n    local path= part\n"
           "    for part in \"${(@)words[2,CURRENT-1]}\"; do\n        case \"$path $part\" in\n";
    walk(app, "", [&](const CLI::App&, const std::string& path) {
        if (!path.empty()) out << "            \" " << path << "\") path=' " << path << "' ;;\n";
    });
    out << "        esac\n    done\n    case \"$path\" in\n";
    walk(app, "", [&](const CLI::App& command, const std::string& path) {
        out << "        '" << (path.empty() ? "" : " " + path) << "') _arguments";
        for (const CLI::Option* option : command.get_options()) {
            if (option->get_positional()) continue;
            for (const std::string& name : namesOf(*option)) {
                out << " '" << name << "[" << escaped(escaped(option->get_description(), "[]"), "'", "'\\'") << "]"
                    << (takesValue(*option) ? ":value:_files" : "") << "'";
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

std::string fishScript(const CLI::App& app) {
    std::ostringstream out;
    out << "# fish completion for tavrin-cli\n";
    walk(app, "", [&](const CLI::App& command, const std::string& path) {
        std::string when = "__fish_use_subcommand", word;
        std::istringstream words(path);
        if (!path.empty()) when.clear();
        while (words >> word)
            when += (when.empty() ? "" : "; and ") + std::string("__fish_seen_subcommand_from ") + word;
        const std::string start = "complete -c tavrin-cli -n '" + when + "'";
        for (const CLI::App* inside : commandsIn(command))
            out << start << " -f -a " << inside->get_name() << " -d '" << escaped(inside->get_description(), "'\\")
                << "'\n";
        for (const CLI::Option* option : command.get_options()) {
            if (option->get_positional()) continue;
            out << start;
            for (const std::string& name : option->get_lnames())
                out << " -l " << name;
            for (const std::string& name : option->get_snames())
                out << " -s " << name;
            out << (takesValue(*option) ? " -r" : "") << " -d '" << escaped(option->get_description(), "'\\")
                << "'\n";
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

std::string manualPage(const CLI::App& app) {
    std::ostringstream out;
    out << ".TH TAVRIN\\-CLI 1\n.SH NAME\ntavrin\\-cli \\- green\\-screen pictures on the command line\n"
           ".SH SYNOPSIS\n.B tavrin\\-cli\n.I command\n[options]\n.SH DESCRIPTION\n"
        << roff(app.get_description());
    walk(app, "", [&](const CLI::App& command, const std::string& path) {
        if (path.empty()) {
            out << ".SH OPTIONS\n";
        } else {
            out << ".SH \"COMMAND " << roff(path).substr(0, roff(path).size() - 1) << "\"\n"
                << roff(command.get_description());
        }
        for (const CLI::Option* option : command.get_options()) {
            const std::string names = joined(namesOf(*option), ", ");
            out << ".TP\n.B " << roff(names + (takesValue(*option) && !option->get_positional() ? " value" : ""))
                << roff(option->get_description());
        }
        if (!command.get_footer().empty()) out << ".PP\n.nf\n" << roff(command.get_footer()) << ".fi\n";
    });
    return out.str();
}

int print(const CLI::App& app, const std::string& shell) {
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
