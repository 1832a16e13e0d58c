#include "pngfile.h"

#include <png.h>

#include <csetjmp>
#include <cstddef>

namespace {

constexpr int kRgbBytes = 3;
constexpr int kBitDepth = 8;

void AppendBytes(png_structp writer, png_bytep data, png_size_t length) {
    auto* out = static_cast<std::vector<uint8_t>*>(png_get_io_ptr(writer));
    out->insert(out->end(), data, data + length);
}

void NoFlush(png_structp) {}

// libpng reports its failures by a long jump back to the setjmp of the caller; this keeps the jump
// inside a function that holds no objects with destructors.
bool WriteRows(png_structp writer, png_infop info, int width, int height, const uint8_t* rgb,
               std::vector<uint8_t>* out) {
    if (setjmp(png_jmpbuf(writer)))
        return false;
    png_set_write_fn(writer, out, AppendBytes, NoFlush);
    png_set_IHDR(writer, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height),
                 kBitDepth, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    png_write_info(writer, info);
    const std::size_t rowBytes = static_cast<std::size_t>(width) * kRgbBytes;
    for (int row = 0; row < height; ++row)
        png_write_row(writer, rgb + row * rowBytes);
    png_write_end(writer, nullptr);
    return true;
}

} // namespace

bool EncodePng(int width, int height, const std::vector<uint8_t>& rgb, std::vector<uint8_t>& png) {
    png.clear();
    if (width <= 0 || height <= 0 ||
        rgb.size() !=
            static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * kRgbBytes)
        return false;
    png_structp writer = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    if (writer == nullptr)
        return false;
    png_infop info = png_create_info_struct(writer);
    const bool written =
        info != nullptr && WriteRows(writer, info, width, height, rgb.data(), &png);
    png_destroy_write_struct(&writer, &info);
    if (!written)
        png.clear();
    return written;
}
