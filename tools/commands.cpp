#include "commands.h"

const std::vector<ToolCommand>& ToolCommands() {
    static const std::vector<ToolCommand> commands = {};
    return commands;
}
