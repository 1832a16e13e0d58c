// moxtool: the command-line companion of the editor, for scripts and for people who edit models
// by hand.
#include "commands.h"

#include <exception>
#include <iostream>

namespace {

void PrintUsage(std::ostream& out) {
    out << "usage: moxtool COMMAND [ARGS...]\n"
           "       moxtool COMMAND --help\n\ncommands:\n";
    for (const ToolCommand& command : ToolCommands())
        out << "  " << command.name << "\t" << command.summary << "\n";
}

} // namespace

int main(int argc, char** argv) {
    const Arguments words(argv + 1, argv + argc);
    if (words.empty()) {
        PrintUsage(std::cerr);
        return kExitFailure;
    }
    if (words[0] == "--help" || words[0] == "-h") {
        PrintUsage(std::cout);
        return kExitOk;
    }
    for (const ToolCommand& command : ToolCommands()) {
        if (words[0] != command.name)
            continue;
        // A command's own failures end in its exit status; this only catches what no command
        // foresaw, such as running out of memory, so that it still ends in a one-line message.
        try {
            return command.run(Arguments(words.begin() + 1, words.end()));
        } catch (const std::exception& failure) {
            std::cerr << "moxtool: " << command.name << ": " << failure.what() << "\n";
            return kExitFailure;
        }
    }
    std::cerr << "moxtool: unknown command '" << words[0] << "'\n";
    PrintUsage(std::cerr);
    return kExitFailure;
}
