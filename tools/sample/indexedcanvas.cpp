#include "indexedcanvas.h"

#include "pixelfont.h"

#include <algorithm>
#include <cmath>

IndexedCanvas::IndexedCanvas(int width, int height, uint8_t background)
    : width_(width), height_(height),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), background) {}

uint8_t IndexedCanvas::At(int col, int row) const {
    if (col < 0 || row < 0 || col >= width_ || row >= height_)
        return 0;
    return pixels_[static_cast<std::size_t>(row) * width_ + col];
}

void IndexedCanvas::Set(int col, int row, uint8_t colour) {
    if (col < 0 || row < 0 || col >= width_ || row >= height_)
        return;
    pixels_[static_cast<std::size_t>(row) * width_ + col] = colour;
}

void IndexedCanvas::FillRect(int col, int row, int width, int height, uint8_t colour) {
    for (int r = row; r < row + height; ++r) {
        for (int c = col; c < col + width; ++c)
            Set(c, r, colour);
    }
}

void IndexedCanvas::FillPolygon(const std::vector<PixelPoint>& corners, uint8_t colour) {
    if (corners.size() < 3)
        return;
    double top = corners.front().row;
    double bottom = top;
    for (const PixelPoint& corner : corners) {
        top = std::min(top, corner.row);
        bottom = std::max(bottom, corner.row);
    }
    const int firstRow = std::max(0, static_cast<int>(std::floor(top)));
    const int lastRow = std::min(height_ - 1, static_cast<int>(std::ceil(bottom)));
    std::vector<double> crossings;
    for (int row = firstRow; row <= lastRow; ++row) {
        const double y = row + 0.5;
        crossings.clear();
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const PixelPoint& a = corners[i];
            const PixelPoint& b = corners[(i + 1) % corners.size()];
            if ((a.row <= y) != (b.row <= y))
                crossings.push_back(a.col + (y - a.row) * (b.col - a.col) / (b.row - a.row));
        }
        std::sort(crossings.begin(), crossings.end());
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
            const int from = static_cast<int>(std::ceil(crossings[i] - 0.5));
            const int to = static_cast<int>(std::floor(crossings[i + 1] - 0.5));
            for (int col = std::max(0, from); col <= std::min(width_ - 1, to); ++col)
                Set(col, row, colour);
        }
    }
}

void IndexedCanvas::FillDisc(PixelPoint centre, double radius, uint8_t colour) {
    const int firstRow = static_cast<int>(std::floor(centre.row - radius));
    const int lastRow = static_cast<int>(std::ceil(centre.row + radius));
    const int firstCol = static_cast<int>(std::floor(centre.col - radius));
    const int lastCol = static_cast<int>(std::ceil(centre.col + radius));
    for (int row = firstRow; row <= lastRow; ++row) {
        for (int col = firstCol; col <= lastCol; ++col) {
            const double dc = col + 0.5 - centre.col;
            const double dr = row + 0.5 - centre.row;
            if (dc * dc + dr * dr <= radius * radius)
                Set(col, row, colour);
        }
    }
}

void IndexedCanvas::DrawLine(PixelPoint from, PixelPoint to, uint8_t colour) {
    const double steps = std::max({std::abs(to.col - from.col), std::abs(to.row - from.row), 1.0});
    for (int i = 0; i <= static_cast<int>(std::ceil(steps)); ++i) {
        const double t = std::min(1.0, i / steps);
        Set(static_cast<int>(std::floor(from.col + t * (to.col - from.col))),
            static_cast<int>(std::floor(from.row + t * (to.row - from.row))), colour);
    }
}

void IndexedCanvas::DrawPolygonOutline(const std::vector<PixelPoint>& corners, uint8_t colour) {
    for (std::size_t i = 0; i < corners.size(); ++i)
        DrawLine(corners[i], corners[(i + 1) % corners.size()], colour);
}

void IndexedCanvas::DrawText(int col, int row, const std::string& text, int scale, uint8_t colour) {
    int left = col;
    for (char letter : text) {
        const Glyph glyph = GlyphOf(letter);
        for (int r = 0; r < kGlyphHeight; ++r) {
            for (int c = 0; c < kGlyphWidth; ++c) {
                if (glyph[r] & (1 << (kGlyphWidth - 1 - c)))
                    FillRect(left + c * scale, row + r * scale, scale, scale, colour);
            }
        }
        left += kGlyphAdvance * scale;
    }
}
