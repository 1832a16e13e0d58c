#include "commands.h"

#include "texturecommand.h"

const std::vector<ToolCommand>& ToolCommands() {
    static const std::vector<ToolCommand> commands = {
        {"texture", "decode a PCX texture or drawing to PNG or PPM", RunTextureCommand},
    };
    return commands;
}
