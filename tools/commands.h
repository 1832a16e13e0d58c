// The commands of moxtool. Each declares its options and arguments on its own part of the command
// line and returns what runs it; the run returns the exit status.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

using Arguments = std::vector<std::string>;
using CommandRun = std::function<int()>;

struct ToolCommand {
    const char* name;
    const char* summary;
    const char* usage;       // "moxtool dump [--json] FILE.mox"
    const char* description; // what `moxtool NAME --help` tells beyond the options
    // Declares the command's options on `command`; the result runs it with what was given.
    CommandRun (*define)(CLI::App& command);
};

ToolCommand DumpCommand();
ToolCommand BuildCommand();
ToolCommand ResaveCommand();
ToolCommand InfoCommand();
ToolCommand TextureCommand();
ToolCommand ProjectCommand();
ToolCommand SampleCommand();
ToolCommand CheckCommand();
ToolCommand ExportCommand();

// Every command, in the order `moxtool --help` lists them.
const std::vector<ToolCommand>& ToolCommands();

// Runs moxtool on the words behind the program's name and returns the exit status. Help goes to
// stdout; a usage error is one line on stderr.
int RunMoxtool(const Arguments& words);

constexpr int kExitOk = 0;
// `moxtool check` found errors in the model.
constexpr int kExitFindings = 1;
// A usage error, or an input that cannot be read or a file that cannot be written.
constexpr int kExitFailure = 2;
