// The image stores Texture(0) to Texture(7): the decoded pictures of the model's textures (slot =
// file index) and of the last 3-view drawing (slot 7). The texture window paints from them.
#pragma once

#include "pcximage.h"

#include <cstdint>
#include <vector>

constexpr int kImageStoreCount = 8;
constexpr int kThreeViewSlot = 7;
// A colour as the stores tell it: 0x00BBGGRR.
constexpr uint32_t kWhite = 0x00FFFFFF;
// What Point gives for a position outside the store.
constexpr uint32_t kNoPixel = 0xFFFFFFFF;

class ImageStore {
public:
    ImageStore();

    // Drops the picture. An empty store is one white pixel, so its texture is plain white.
    void Clear();
    // Takes the picture and its size. A picture without pixels empties the store.
    void SetPicture(PcxImage picture);

    bool HasPicture() const { return hasPicture_; }
    int Width() const { return image_.width; }
    int Height() const { return image_.height; }
    // The colour at (x, y), x from the left and y from the top, as 0x00BBGGRR; kNoPixel outside.
    uint32_t Point(int x, int y) const;
    // Red, green, blue per pixel, rows top to bottom: Width() * Height() * 3 bytes.
    const std::vector<uint8_t>& Pixels() const { return image_.rgb; }

private:
    PcxImage image_;
    bool hasPicture_ = false;
};

// Image store `slot`, 0 to 7; nullptr for any other slot.
ImageStore* Texture(int slot);
