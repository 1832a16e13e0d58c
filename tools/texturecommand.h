// moxtool texture IN.pcx OUT.png|OUT.ppm: the picture the editor makes of a texture or drawing.
#pragma once

#include "commands.h"

int RunTextureCommand(const Arguments& args);
