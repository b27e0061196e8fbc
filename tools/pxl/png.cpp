#include "png.hpp"

#include <png.h>

#include <cstdio>

bool writePng(const std::string& path, const uint8_t* data, int step, int width, int height, int channels)
{
    const int colour = channels == 1 ? PNG_COLOR_TYPE_GRAY
                     : channels == 3 ? PNG_COLOR_TYPE_RGB
                     : channels == 4 ? PNG_COLOR_TYPE_RGBA : -1;
    if (colour < 0) return false;
    FILE* f = std::fopen(path.c_str(), "wb");
    if (!f) return false;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    bool ok = false;
    if (info && !setjmp(png_jmpbuf(png))) {
        png_init_io(png, f);
        png_set_IHDR(png, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height), 8, colour,
                     PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        png_write_info(png, info);
        for (int y = 0; y < height; ++y)
            png_write_row(png, const_cast<png_bytep>(data + static_cast<std::ptrdiff_t>(y) * step));
        png_write_end(png, nullptr);
        ok = true;
    }
    png_destroy_write_struct(&png, &info);
    return std::fclose(f) == 0 && ok;
}
