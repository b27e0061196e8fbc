#pragma once

#include <cstdint>
#include <string>

// Writes 8-bit rows (1 = gray, 3 = RGB, 4 = RGBA) as a PNG file; false when it cannot.
bool writePng(const std::string& path, const uint8_t* data, int step, int width, int height, int channels);
