#include "frame/bind.hpp"
#include "frame/frame.hpp"

namespace pxl::frame {
namespace {
// Constant storage: the record and its texts are fixed when the library is linked, so any thread
// may read them before or during any other call.
constexpr PxlVersionRecord kVersion = {
    2017, 0, 3, 55431, {'p', 'x', '\0', '\0'}, "pxlIP PX (px)", "2017.0.3 (r55431)", "Apr 12 2017",
};
}  // namespace

const PxlVersionRecord* getLibVersion() { return &kVersion; }

}  // namespace pxl::frame

#include "inst/frame/version.inc"
