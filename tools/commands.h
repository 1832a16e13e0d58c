// The commands of moxtool. Each takes the words after its name and returns the exit status:
// 0 on success, 2 on a usage error or unreadable input.
#pragma once

#include <string>
#include <vector>

using Arguments = std::vector<std::string>;

struct ToolCommand {
    const char* name;
    const char* summary;
    int (*run)(const Arguments& args);
};

ToolCommand DumpCommand();
ToolCommand BuildCommand();
ToolCommand ResaveCommand();
ToolCommand InfoCommand();
ToolCommand ProjectCommand();
ToolCommand SampleCommand();

// Every command, in the order `moxtool --help` lists them.
const std::vector<ToolCommand>& ToolCommands();

constexpr int kExitOk = 0;
constexpr int kExitFailure = 2;
