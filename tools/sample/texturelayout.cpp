#include "texturelayout.h"

namespace {
constexpr int kSwatchesPerRow = 10;
}

PixelPoint InRect(const PixelRect& rect, double u, double v) {
    return {rect.col + u * rect.width, rect.row + v * rect.height};
}

PixelPoint SwatchOf(const SwatchGrid& grid, PaintColour colour) {
    const int index = static_cast<int>(colour);
    return {grid.left + kSwatchSize * (index % kSwatchesPerRow) + kSwatchSize / 2.0,
            grid.top + kSwatchSize * (index / kSwatchesPerRow) + kSwatchSize / 2.0};
}

void PaintSwatches(IndexedCanvas& canvas, const SwatchGrid& grid) {
    for (int colour = 0; colour < kNamedColours; ++colour) {
        const int index = colour;
        canvas.FillRect(grid.left + kSwatchSize * (index % kSwatchesPerRow),
                        grid.top + kSwatchSize * (index / kSwatchesPerRow), kSwatchSize,
                        kSwatchSize, static_cast<uint8_t>(colour));
    }
}

void DrawRings(IndexedCanvas& canvas, PixelPoint centre,
               std::initializer_list<std::pair<double, PaintColour>> rings) {
    for (const auto& [radius, colour] : rings)
        canvas.FillDisc(centre, radius, colour);
}

void OutlineRect(IndexedCanvas& canvas, const PixelRect& rect, PaintColour colour) {
    canvas.FillRect(rect.col, rect.row, rect.width, 1, colour);
    canvas.FillRect(rect.col, rect.row + rect.height - 1, rect.width, 1, colour);
    canvas.FillRect(rect.col, rect.row, 1, rect.height, colour);
    canvas.FillRect(rect.col + rect.width - 1, rect.row, 1, rect.height, colour);
}
