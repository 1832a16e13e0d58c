// Rectangles of a texture, the colour swatches that plain faces point at, and the helpers that
// paint into them.
#pragma once

#include "indexedcanvas.h"
#include "mapprojection.h"
#include "samplepalette.h"

#include <initializer_list>
#include <utility>

struct PixelRect {
    int col = 0;
    int row = 0;
    int width = 0;
    int height = 0;
};

// A texture position inside `rect`, `u` and `v` running from 0 to 1 across and down it.
PixelPoint InRect(const PixelRect& rect, double u, double v);

// One swatch of kSwatchSize pixels square for each named colour, ten to a row, from `left`, `top`.
struct SwatchGrid {
    int left = 0;
    int top = 0;
};
constexpr int kSwatchSize = 8;

// The texture position of the middle of the swatch of `colour`.
PixelPoint SwatchOf(const SwatchGrid& grid, PaintColour colour);
void PaintSwatches(IndexedCanvas& canvas, const SwatchGrid& grid);

// Paints every pixel of `rect` by the model coordinates of its centre along the projection's
// two axes.
template <typename Paint>
void PaintRegion(IndexedCanvas& canvas, const PixelRect& rect, const MapProjection& projection,
                 Paint paint) {
    for (int row = rect.row; row < rect.row + rect.height; ++row) {
        for (int col = rect.col; col < rect.col + rect.width; ++col)
            canvas.Set(col, row,
                       paint(projection.AcrossAt(col + 0.5), projection.DownAt(row + 0.5)));
    }
}

// Concentric discs, painted from the first (outermost) to the last.
void DrawRings(IndexedCanvas& canvas, PixelPoint centre,
               std::initializer_list<std::pair<double, PaintColour>> rings);
void OutlineRect(IndexedCanvas& canvas, const PixelRect& rect, PaintColour colour);
