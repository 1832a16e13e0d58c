#include "imagestore.h"

#include <array>

namespace {

constexpr uint8_t kFullIntensity = 255;

std::array<ImageStore, kImageStoreCount> stores;

} // namespace

ImageStore::ImageStore() {
    Clear();
}

void ImageStore::Clear() {
    image_.width = 1;
    image_.height = 1;
    image_.rgb.assign(kRgbBytes, kFullIntensity);
    hasPicture_ = false;
}

void ImageStore::SetPicture(PcxImage picture) {
    const std::size_t expected = picture.RowBytes() * static_cast<std::size_t>(picture.height);
    if (picture.width <= 0 || picture.height <= 0 || picture.rgb.size() != expected) {
        Clear();
        return;
    }
    image_ = std::move(picture);
    hasPicture_ = true;
}

uint32_t ImageStore::Point(int x, int y) const {
    if (x < 0 || y < 0 || x >= image_.width || y >= image_.height)
        return kNoPixel;
    const uint8_t* pixel = image_.rgb.data() + image_.RowBytes() * static_cast<std::size_t>(y) +
                           static_cast<std::size_t>(x) * kRgbBytes;
    return static_cast<uint32_t>(pixel[0]) | (static_cast<uint32_t>(pixel[1]) << 8) |
           (static_cast<uint32_t>(pixel[2]) << 16);
}

ImageStore* Texture(int slot) {
    if (slot < 0 || slot >= kImageStoreCount)
        return nullptr;
    return &stores[static_cast<std::size_t>(slot)];
}
