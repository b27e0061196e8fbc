// Binding an exported name to its implementation.
//
// The one list of exported names (src/exports.list) says, for each name, which function or template
// instantiation implements it and in which source file that lives. The generator writes, per source
// file, an include of PXL_INSTANTIATE lines; each source file ends with `#include "inst/<file>.inc"`
// so that the instantiations the entry table points at are emitted where their bodies are.
#pragma once

#define PXL_BIND_CAT2(a, b) a##b
#define PXL_BIND_CAT(a, b) PXL_BIND_CAT2(a, b)
#define PXL_INSTANTIATE(...) \
    [[gnu::used]] static constexpr auto PXL_BIND_CAT(pxlInstance_, __COUNTER__) = &__VA_ARGS__;
