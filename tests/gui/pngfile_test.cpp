// The PNG files moxtool writes, read back by Qt's own PNG reader.
#include "pngfile.h"
#include "testpictures.h"

#include <QImage>

#include <gtest/gtest.h>

namespace {

TEST(PngFile, WritesFilesThatAnotherReaderDecodesPixelForPixel) {
    for (const auto& [width, height] : {std::pair{1, 1}, {7, 5}, {200, 150}}) {
        SCOPED_TRACE(std::to_string(width) + "x" + std::to_string(height));
        const std::vector<uint8_t> rgb = TestRgb(width, height, 12);
        std::vector<uint8_t> png;
        ASSERT_TRUE(EncodePng(width, height, rgb, png));
        QImage image;
        ASSERT_TRUE(image.loadFromData(png.data(), static_cast<int>(png.size()), "PNG"));
        const QImage expected(rgb.data(), width, height, width * 3, QImage::Format_RGB888);
        EXPECT_TRUE(image.convertToFormat(QImage::Format_RGB888) == expected);
    }
    std::vector<uint8_t> png;
    EXPECT_FALSE(EncodePng(2, 2, std::vector<uint8_t>(11), png));
}

} // namespace
