// A picture of palette indices that the generator paints its texture and drawings on: filled
// polygons and discs, lines and block letters, all clipped to the picture.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

struct Rgb {
    uint8_t red = 0;
    uint8_t green = 0;
    uint8_t blue = 0;
};
using Palette = std::array<Rgb, 256>;

// A position in pixels: column and row counted from the top left corner of the picture; the
// pixel (c, r) covers c to c + 1 and r to r + 1.
struct PixelPoint {
    double col = 0;
    double row = 0;
};

class IndexedCanvas {
public:
    IndexedCanvas(int width, int height, uint8_t background);

    int Width() const { return width_; }
    int Height() const { return height_; }
    // Rows top to bottom, one byte per pixel.
    const std::vector<uint8_t>& Pixels() const { return pixels_; }

    uint8_t At(int col, int row) const;
    void Set(int col, int row, uint8_t colour);
    void FillRect(int col, int row, int width, int height, uint8_t colour);
    // Fills the pixels whose centres lie inside the polygon (even-odd rule).
    void FillPolygon(const std::vector<PixelPoint>& corners, uint8_t colour);
    void FillDisc(PixelPoint centre, double radius, uint8_t colour);
    void DrawLine(PixelPoint from, PixelPoint to, uint8_t colour);
    void DrawPolygonOutline(const std::vector<PixelPoint>& corners, uint8_t colour);
    // Block letters of 5 by 7 cells, each cell `scale` pixels wide, from the top left corner.
    void DrawText(int col, int row, const std::string& text, int scale, uint8_t colour);

private:
    int width_;
    int height_;
    std::vector<uint8_t> pixels_;
};
