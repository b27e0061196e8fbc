// Declarations of the frame's implementations, for the entry table.
#pragma once

#include "pxlipx.h"

namespace pxl::frame {

const PxlVersionRecord* getLibVersion();

// Image memory of B bytes per pixel; the plain form and the wide (_L) form.
template <int B> void* allocImage(int32_t width, int32_t height, int32_t* pStep);
template <int B> void* allocImageWide(int32_t width, int32_t height, int32_t* pStep);
void freeImage(void* ptr);

}  // namespace pxl::frame
