// The element kinds and what each stores in a stream behind its Type byte, shared by the reader,
// the writer and the JSON form so that all three walk an entry the same way.
#pragma once

#include <cstddef>
#include <cstdint>

constexpr uint8_t kTypeColouredLine = 1;
constexpr uint8_t kTypeHardpoint = 2;
constexpr uint8_t kTypeColouredPoly = 3;
constexpr uint8_t kTypeGouraudPoly = 4;
constexpr uint8_t kTypeTexturedPoly = 5;
constexpr uint8_t kTypeTransparentPoly = 6;

// The hardpoint codes that fill HP(1) to HP(6), in slot order; other codes fill no slot.
constexpr uint8_t kHardpointCodes[] = {25, 26, 27, 28, 29, 10};

// The HP slot (1 to 6) a hardpoint of `code` fills; 0 when the code fills none.
int HardpointSlot(uint8_t code);

// What an entry of a given Type holds. Any Type other than 1, 2, 3, 4 and 255 is stored like a
// Textured Poly.
struct KindLayout {
    bool storesCRN = false; // CRN is in the stream; otherwise the kind fixes the corner count
    int fixedCorners = 0;   // corners of a kind that does not store CRN
    bool hasXMap = false;   // x map (kinds 5, 6) or corner colour (kind 4)
    bool hasYMap = false;
    bool hasAtt1 = false;
    bool hasAtt2 = false;
};

KindLayout LayoutOf(uint8_t type);

// The bytes one corner takes in a stream: its node, then its x and y map values where the kind
// has them. The reader and writer move the corners of an entry as one block of these.
inline size_t BytesPerCorner(const KindLayout& layout) {
    return 1 + size_t{layout.hasXMap} + size_t{layout.hasYMap};
}
// The most bytes the corners of one entry take: 255 corners of a node and two map values.
constexpr size_t kMaxCornerBytes = 255 * 3;
