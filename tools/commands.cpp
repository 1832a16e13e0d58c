#include "commands.h"

const std::vector<ToolCommand>& ToolCommands() {
    static const std::vector<ToolCommand> commands = {
        DumpCommand(),   BuildCommand(),   ResaveCommand(),  InfoCommand(),   CheckCommand(),
        ExportCommand(), TextureCommand(), ProjectCommand(), SampleCommand(),
    };
    return commands;
}
