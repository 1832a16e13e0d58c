// The 3-view drawings of a project: the assembled model seen from above, from the left and from
// the front, its visible polygons filled in shades of grey and outlined, each picture filling
// exactly the box of the drawings as the backdrops stretch it.
#pragma once

#include "assembledfamily.h"
#include "indexedcanvas.h"

enum class DrawingView { Top, Left, Front };

// The drawing of `polygons` within `box`, at `pixelsPerUnit` pixels to a model unit:
// - Top: seen from above; left edge the smallest X, bottom edge the smallest Y;
// - Left: seen from -Y; left edge the smallest X, top edge the largest Z;
// - Front: seen from -X; left edge the largest Y, top edge the largest Z.
IndexedCanvas DrawThreeView(const std::vector<AssembledPolygon>& polygons, const ModelBox& box,
                            DrawingView view, double pixelsPerUnit);

// The colours of the drawings: white paper, black lines and greys.
Palette DrawingPalette();
