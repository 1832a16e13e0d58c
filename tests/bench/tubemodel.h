// The largest model file the format allows: a tube of quads around the X axis in 255 elements of
// textured polygons, near 32 kB; with hardpoints for slots 1 to 6 it is the main file of a family.
#pragma once

#include "moxbuilder.h"

MoxBuilder TubeFile(bool withHardpoints);
