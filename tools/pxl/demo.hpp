// The demo: every implemented family shows what it does to a built-in synthetic image, as PNG files
// in the output folder, and how long it takes.
#pragma once

#include "pxlipx.h"

#include <functional>
#include <string>
#include <vector>

namespace demo {

// An 8-bit image in library memory, freed with it.
struct Image {
    Image(int width, int height, int channels);
    ~Image();
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;
    Pxl8u* data = nullptr;
    int32_t step = 0;
    int width, height, channels;
    PxliSize size() const { return {width, height}; }
};

struct Context {
    std::string outDir;
    const Image& rgb;   // the built-in synthetic image, three channels
    const Image& gray;  // the same, one channel
    void save(const std::string& name, const Image& img);  // name without extension
    // Times fn (one call) and adds a row to the table: best of several runs of repeated calls.
    void time(const std::string& op, const std::string& size, double pixels, const std::function<void()>& fn);

    struct Row { std::string op, size; double nsPerCall, mpixPerSec; };
    std::vector<Row> rows;
    std::vector<std::string> files;
    std::vector<std::string> notes;  // printed after the list of files
};

// Each family's demo: a name and what it does with the context.
struct Entry {
    const char* family;
    void (*run)(Context&);
};
const std::vector<Entry>& entries();

int run(const std::string& outDir);

}  // namespace demo
