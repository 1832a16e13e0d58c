#include "commands.h"

#include "texturecommand.h"

const std::vector<ToolCommand>& ToolCommands() {
    static const std::vector<ToolCommand> commands = {
        DumpCommand(),
        BuildCommand(),
        ResaveCommand(),
        InfoCommand(),
        {"texture", "decode a PCX texture or drawing to PNG or PPM", RunTextureCommand},
        ProjectCommand(),
        SampleCommand(),
    };
    return commands;
}
