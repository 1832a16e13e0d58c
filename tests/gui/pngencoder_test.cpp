// The PNG files moxtool writes, read back by Qt's own PNG reader.
#include "pngencoder.h"
#include "testpictures.h"

#include <QImage>

#include <gtest/gtest.h>

namespace {

TEST(PngEncoder, WritesFilesThatAnotherReaderDecodesPixelForPixel) {
    // 200 x 150 needs more than one stored deflate block.
    for (const auto& [width, height] : {std::pair{1, 1}, {7, 5}, {200, 150}}) {
        SCOPED_TRACE(std::to_string(width) + "x" + std::to_string(height));
        const std::vector<uint8_t> rgb = TestRgb(width, height, 12);
        const std::vector<uint8_t> png = EncodePng(width, height, rgb);
        QImage image;
        ASSERT_TRUE(image.loadFromData(png.data(), static_cast<int>(png.size()), "PNG"));
        image = image.convertToFormat(QImage::Format_RGB888);
        ASSERT_EQ(image.width(), width);
        ASSERT_EQ(image.height(), height);
        for (int y = 0; y < height; ++y) {
            const auto row = rgb.begin() + y * width * 3;
            EXPECT_TRUE(std::equal(row, row + width * 3, image.constScanLine(y))) << "row " << y;
        }
    }
    EXPECT_TRUE(EncodePng(2, 2, std::vector<uint8_t>(11)).empty());
}

} // namespace
