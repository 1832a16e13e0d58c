// moxtool's command line: one parser for every command, so that each has --help, the same usage
// errors and the same exit status.
#include "commands.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>
#include <map>
#include <memory>

namespace {

// Help starts with the command's usage line, then what it does, then the options.
class ToolFormatter final : public CLI::Formatter {
public:
    explicit ToolFormatter(std::map<const CLI::App*, std::string> usages)
        : usages_(std::move(usages)) {}

    std::string make_usage(const CLI::App* app, std::string) const override {
        const auto found = usages_.find(app);
        return "usage: " + (found == usages_.end() ? std::string() : found->second) + "\n";
    }

    std::string make_help(const CLI::App* app, std::string name,
                          CLI::AppFormatMode mode) const override {
        return make_usage(app, name) + "\n" + make_description(app) + make_positionals(app) +
               make_groups(app, mode) + make_footer(app);
    }

private:
    std::map<const CLI::App*, std::string> usages_;
};

void PrintUsage(std::ostream& out) {
    out << "usage: moxtool COMMAND [ARGS...]\n"
           "       moxtool COMMAND --help\n\ncommands:\n";
    for (const ToolCommand& command : ToolCommands())
        out << "  " << command.name << "\t" << command.summary << "\n";
}

const ToolCommand* FindCommand(const std::string& name) {
    for (const ToolCommand& command : ToolCommands()) {
        if (name == command.name)
            return &command;
    }
    return nullptr;
}

} // namespace

int RunMoxtool(const Arguments& words) {
    if (words.empty()) {
        PrintUsage(std::cerr);
        return kExitFailure;
    }
    if (words[0] == "--help" || words[0] == "-h") {
        PrintUsage(std::cout);
        return kExitOk;
    }
    const ToolCommand* command = FindCommand(words[0]);
    if (command == nullptr) {
        std::cerr << "moxtool: unknown command '" << words[0] << "' (moxtool --help lists them)\n";
        return kExitFailure;
    }

    CLI::App app("moxtool", "moxtool");
    CLI::App* sub = app.add_subcommand(command->name, command->description);
    sub->formatter(std::make_shared<ToolFormatter>(
        std::map<const CLI::App*, std::string>{{sub, command->usage}}));
    const CommandRun run = command->define(*sub);
    // CLI11 reads the words last to first.
    std::vector<std::string> reversed(words.rbegin(), words.rend());
    try {
        app.parse(reversed);
    } catch (const CLI::CallForHelp&) {
        std::cout << sub->help();
        return kExitOk;
    } catch (const CLI::ParseError& error) {
        std::cerr << "moxtool " << command->name << ": " << error.what()
                  << " (usage: " << command->usage << ")\n";
        return kExitFailure;
    }
    // A command's own failures end in its exit status; this only catches what no command
    // foresaw, such as running out of memory, so that it still ends in a one-line message.
    try {
        return run();
    } catch (const std::exception& failure) {
        std::cerr << "moxtool: " << command->name << ": " << failure.what() << "\n";
        return kExitFailure;
    }
}
