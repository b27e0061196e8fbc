#include "pxltest.hpp"

namespace pxltest {

GuardedBuffer::GuardedBuffer(int rowBytes, int height, int padBytes, int guardBytes, int misalign)
    : rowBytes_(rowBytes), height_(height)
{
    // Each line: guard, region row, padding and guard. The step covers the whole line, so the
    // padding between rows is guarded too; guard rows lie above and below the region.
    // The step is a multiple of 64, so that every row starts as aligned as the first; with no
    // guard and no padding the rows follow each other with no gap.
    step_ = guardBytes + rowBytes + padBytes + guardBytes;
    if (guardBytes > 0) step_ = (step_ + 63) / 64 * 64;
    const std::size_t lines = static_cast<std::size_t>(height) + 2;
    buf_.resize(lines * static_cast<std::size_t>(step_) + 64 + static_cast<std::size_t>(misalign));
    for (std::size_t i = 0; i < buf_.size(); ++i) buf_[i] = sentinel(i);
    // The region starts on a 64-byte boundary (plus the requested misalignment), one guard line
    // down and one guard band in.
    const std::size_t align = (64 - reinterpret_cast<uintptr_t>(buf_.data()) % 64) % 64;
    origin_ = align + static_cast<std::size_t>(step_) + static_cast<std::size_t>(guardBytes) +
              static_cast<std::size_t>(misalign);
}

bool GuardedBuffer::guardsIntact() const
{
    const std::size_t first = origin_;
    for (std::size_t i = 0; i < buf_.size(); ++i) {
        const bool inRegion = i >= first && (i - first) / static_cast<std::size_t>(step_) <
                                                static_cast<std::size_t>(height_) &&
                              (i - first) % static_cast<std::size_t>(step_) < static_cast<std::size_t>(rowBytes_);
        if (!inRegion && buf_[i] != sentinel(i)) return false;
    }
    return true;
}

Watch::Watch(std::initializer_list<const GuardedBuffer*> buffers) : buffers_(buffers)
{
    for (const auto* b : buffers_) before_.push_back(b->bytes());
}

::testing::AssertionResult Watch::unchanged() const
{
    for (std::size_t k = 0; k < buffers_.size(); ++k) {
        const auto& now = buffers_[k]->bytes();
        for (std::size_t i = 0; i < now.size(); ++i)
            if (now[i] != before_[k][i])
                return ::testing::AssertionFailure() << "buffer " << k << " written at byte " << i;
    }
    return ::testing::AssertionSuccess();
}

}  // namespace pxltest
