// Draw_3Views: the 3-view drawings of the open project on three faces of its box, behind the
// model in the orthographic views that face them.
#pragma once

#include "programstate.h"

// Paints the Top drawing on the bottom of the box facing +Z, the Front drawing on its side at the
// largest X facing -X and the Left drawing on its side at the largest Y facing -Y, each stretched
// over its face. Culling chooses what a view shows. Leaves the depth test on. A box whose far
// corner lies beyond the 16-bit range is not painted.
void Draw_3Views(const ProjectRecord& box);
