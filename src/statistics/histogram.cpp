// Histograms, counting in a range, and the Otsu threshold.
//
// The histogram record lies in the caller's buffer at the pointer given, which may have any
// alignment; so the record is read and written through unaligned views. Its layout, all 32-bit
// words:
//   0  dataType, numChannels, uniform, identity ("hist", written last)
//   16 nLevels[4]   (0 for unused channels)
//   32 levels[4]    (the byte offset of each channel's level table from the record's start)
//   48 step[4]      (the uniform form's float step per channel)
//   64 the level tables, channel after channel: 32-bit integers, or floats for 32f data
// Integer samples are counted in a table with one counter per possible value, from which each
// bin sums its range of values; 32f samples are placed in their bin by a walk over the levels,
// or by bisection where there are more than 30.
#include "statistics/statistics.hpp"

#include "exchange/rounding.hpp"
#include "frame/bind.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>

namespace pxl::stat {

namespace {

typedef int32_t __attribute__((aligned(1), may_alias)) LooseI32;
typedef uint32_t __attribute__((aligned(1), may_alias)) LooseU32;
typedef float __attribute__((aligned(1), may_alias)) LooseF32;

constexpr uint32_t kHistIdentity = 0x74736968;  // "hist", little-endian
constexpr int kRecordBytes = 64;

struct HistHeader {
    int32_t dataType, numChannels, uniform;
    uint32_t identity;
    int32_t nLevels[4];
    uint32_t levels[4];
    float step[4];
};
static_assert(sizeof(HistHeader) == kRecordBytes);

HistHeader readHeader(const void* spec)
{
    HistHeader h;
    std::memcpy(&h, spec, sizeof h);
    return h;
}

bool knownChannels(int n) { return n == 1 || n == 3 || n == 4; }

template <class T> constexpr PxlDataType typeCode()
{
    if constexpr (std::is_same_v<T, Pxl8u>) return pxlDt8u;
    else if constexpr (std::is_same_v<T, Pxl16u>) return pxlDt16u;
    else if constexpr (std::is_same_v<T, Pxl16s>) return pxlDt16s;
    else return pxlDt32f;
}

// A float level as a 32-bit integer: truncated toward zero, saturated at the ends.
int32_t truncLevel(float v)
{
    if (!(v > -2147483648.0f)) return INT32_MIN;  // NaN never reaches here: levels are checked first
    if (v >= 2147483648.0f) return INT32_MAX;
    return static_cast<int32_t>(v);
}

// Writes a complete record: the header with the identity last. levelOf(c, i) gives level i of
// channel c as the float to store for 32f data or the integer for the others.
template <class LevelOf>
void writeRecord(PxliHistogramSpec* pSpec, PxlDataType dataType, const int* nLevels, int numChannels, bool uniform,
                 const float* step, LevelOf levelOf)
{
    auto* base = reinterpret_cast<unsigned char*>(pSpec);
    HistHeader h{};
    h.dataType = dataType;
    h.numChannels = numChannels;
    h.uniform = uniform ? 1 : 0;
    uint32_t offset = kRecordBytes;
    for (int c = 0; c < numChannels; ++c) {
        h.nLevels[c] = nLevels[c];
        h.levels[c] = offset;
        h.step[c] = step ? step[c] : 0.0f;
        for (int i = 0; i < nLevels[c]; ++i) {
            if (dataType == pxlDt32f) reinterpret_cast<LooseF32*>(base + offset)[i] = levelOf(c, i).first;
            else reinterpret_cast<LooseI32*>(base + offset)[i] = levelOf(c, i).second;
        }
        offset += 4u * static_cast<uint32_t>(nLevels[c]);
    }
    std::memcpy(base, &h, sizeof h);
    const uint32_t identity = kHistIdentity;
    std::memcpy(base + offsetof(HistHeader, identity), &identity, 4);
}

// A failed Init leaves a record that no later call accepts.
PxlStatus failInit(PxliHistogramSpec* pSpec, PxlStatus status)
{
    if (pSpec) std::memset(reinterpret_cast<unsigned char*>(pSpec) + offsetof(HistHeader, identity), 0, 4);
    return status;
}

// ---- Counting 8-bit samples --------------------------------------------------------------------
// One counter per value and channel, in one table per channel: the loop is an increment per
// sample with nothing else, unrolled so that its own bookkeeping does not outweigh the work.
// Interleaved tables, which keep runs of equal samples from waiting on each other's increments,
// cost more in their extra instructions than they save where stores are forwarded quickly.
template <int Mem, int Proc> void count8u(const Pxl8u* p, int step, PxliSize roi, uint32_t (*table)[256])
{
    for (int c = 0; c < Proc; ++c) std::fill_n(table[c], 256, 0u);
    for (int y = 0; y < roi.height; ++y) {
        const Pxl8u* r = rowAt(p, step, y);
        int x = 0;
        for (; x + 8 <= roi.width; x += 8) {
#pragma GCC unroll 8
            for (int k = 0; k < 8; ++k)
                for (int c = 0; c < Proc; ++c) ++table[c][r[(x + k) * Mem + c]];
        }
        for (; x < roi.width; ++x)
            for (int c = 0; c < Proc; ++c) ++table[c][r[x * Mem + c]];
    }
}

// Bins from a table of counters per value: value v at table[v - lowest]; the levels are clamped to
// the table, so levels beyond the type's range give empty bins. Levels rise, so one sweep serves.
template <class Table>
void binsFromTable(const Table* table, int64_t lowest, int64_t values, const LooseI32* levels, int nLevels, Pxl32s* hist)
{
    int64_t pos = 0;
    uint32_t cum = 0, prev = 0;
    for (int i = 0; i < nLevels; ++i) {
        const int64_t target = std::clamp<int64_t>(int64_t{levels[i]} - lowest, 0, values);
        for (; pos < target; ++pos) cum += table[pos];
        if (i > 0) hist[i - 1] = static_cast<Pxl32s>(cum - prev);
        prev = cum;
    }
}

// The bin of a float sample among rising levels, or -1 outside them (NaN included).
inline int floatBin(const LooseF32* lv, int n, float s)
{
    if (!(s >= lv[0] && s < lv[n - 1])) return -1;
    if (n <= 30) {
        int i = 0;
        while (!(s < lv[i + 1])) ++i;
        return i;
    }
    int lo = 0, hi = n - 1;
    while (hi - lo > 1) {
        const int mid = lo + (hi - lo) / 2;
        if (s >= lv[mid]) lo = mid;
        else hi = mid;
    }
    return lo;
}

}  // namespace

PxlStatus histogramGetBufferSize(PxlDataType dataType, PxliSize roi, const int* nLevels, int numChannels, int,
                                 int* pSpecSize, int* pBufferSize)
{
    // Pointers, size, channels, levels, data type.
    if (!nLevels || !pSpecSize || !pBufferSize) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (!knownChannels(numChannels)) return pxlStatusBadChannelCount;
    int64_t levels = 0;
    for (int c = 0; c < numChannels; ++c) {
        if (nLevels[c] < 2) return pxlStatusBadHistogramLevels;
        levels += nLevels[c];
    }
    if (!knownDataType(dataType)) return pxlStatusBadDataType;
    if (kRecordBytes + 4 * levels > INT32_MAX) return pxlStatusSizeOverflow;
    *pSpecSize = static_cast<int>(kRecordBytes + 4 * levels);
    *pBufferSize = dataType == pxlDt8u ? 1024 * numChannels : dataType == pxlDt32f ? 0 : 262144 * numChannels;
    return pxlStatusOk;
}

PxlStatus histogramUniformInit(PxlDataType dataType, const Pxl32f* lowerLevel, const Pxl32f* upperLevel, const int* nLevels,
                               int numChannels, PxliHistogramSpec* pSpec)
{
    // Data type, pointers, channels, levels, limits.
    if (!knownDataType(dataType)) return failInit(pSpec, pxlStatusBadDataType);
    if (!lowerLevel || !upperLevel || !nLevels || !pSpec) return failInit(pSpec, pxlStatusNullPointer);
    if (!knownChannels(numChannels)) return failInit(pSpec, pxlStatusBadChannelCount);
    for (int c = 0; c < numChannels; ++c)
        if (nLevels[c] < 2) return failInit(pSpec, pxlStatusBadHistogramLevels);
    for (int c = 0; c < numChannels; ++c)
        if (!(upperLevel[c] > lowerLevel[c])) return failInit(pSpec, pxlStatusBadLimits);

    const NearestRounding nearest;
    float step[4] = {};
    bool fine = true;
    for (int c = 0; c < numChannels; ++c) {
        step[c] = (upperLevel[c] - lowerLevel[c]) / static_cast<float>(nLevels[c] - 1);
        fine = fine && step[c] >= 1.0f;
    }
    writeRecord(pSpec, dataType, nLevels, numChannels, true, step, [&](int c, int i) {
        const float v = i == 0 ? lowerLevel[c] : i == nLevels[c] - 1 ? upperLevel[c] : static_cast<float>(i) * step[c] + lowerLevel[c];
        return std::pair<float, int32_t>(v, truncLevel(v));
    });
    return dataType != pxlDt32f && !fine ? pxlStatusWarnNoOperation : pxlStatusOk;
}

PxlStatus histogramInit(PxlDataType dataType, const Pxl32f* const* pLevels, const int* nLevels, int numChannels,
                        PxliHistogramSpec* pSpec)
{
    // Data type, pointers, channels, channel tables, level counts, rising levels.
    if (!knownDataType(dataType)) return failInit(pSpec, pxlStatusBadDataType);
    if (!pLevels || !nLevels || !pSpec) return failInit(pSpec, pxlStatusNullPointer);
    if (!knownChannels(numChannels)) return failInit(pSpec, pxlStatusBadChannelCount);
    for (int c = 0; c < numChannels; ++c)
        if (!pLevels[c]) return failInit(pSpec, pxlStatusNullPointer);
    for (int c = 0; c < numChannels; ++c)
        if (nLevels[c] < 2) return failInit(pSpec, pxlStatusBadHistogramLevels);
    for (int c = 0; c < numChannels; ++c)
        for (int i = 1; i < nLevels[c]; ++i)
            if (!(pLevels[c][i] > pLevels[c][i - 1])) return failInit(pSpec, pxlStatusBadLimits);

    writeRecord(pSpec, dataType, nLevels, numChannels, false, nullptr, [&](int c, int i) {
        // A fractional level moves up to the next integer.
        const float v = pLevels[c][i];
        int32_t k = truncLevel(v);
        if (static_cast<float>(k) < v && k < INT32_MAX) ++k;
        return std::pair<float, int32_t>(v, k);
    });
    return pxlStatusOk;
}

PxlStatus histogramGetLevels(const PxliHistogramSpec* pSpec, Pxl32f* const* ppLevels)
{
    // Pointers, identity, the channels' tables.
    if (!pSpec || !ppLevels) return pxlStatusNullPointer;
    const HistHeader h = readHeader(pSpec);
    if (h.identity != kHistIdentity) return pxlStatusBadArgument;
    for (int c = 0; c < h.numChannels; ++c)
        if (!ppLevels[c]) return pxlStatusNullPointer;
    const auto* base = reinterpret_cast<const unsigned char*>(pSpec);
    for (int c = 0; c < h.numChannels; ++c)
        for (int i = 0; i < h.nLevels[c]; ++i)
            ppLevels[c][i] = h.dataType == pxlDt32f ? reinterpret_cast<const LooseF32*>(base + h.levels[c])[i]
                                                    : static_cast<float>(reinterpret_cast<const LooseI32*>(base + h.levels[c])[i]);
    return pxlStatusOk;
}

template <class T, int N>
PxlStatus histogram(const T* pSrc, int srcStep, PxliSize roi, Pxl32s* const* pHist, const PxliHistogramSpec* pSpec, Pxl8u* pBuffer)
{
    constexpr bool isFloat = std::is_same_v<T, Pxl32f>;
    // Pointers (32f needs no buffer), size, step, the record.
    if (!pSrc || !pHist || !pSpec || (!isFloat && !pBuffer)) return pxlStatusNullPointer;
    for (int c = 0; c < N; ++c)
        if (!pHist[c]) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep < 1 || srcStep < static_cast<int64_t>(roi.width) * N * static_cast<int64_t>(sizeof(T))) return pxlStatusBadStep;
    const HistHeader h = readHeader(pSpec);
    if (h.identity != kHistIdentity || h.dataType != typeCode<T>() || h.numChannels != N) return pxlStatusBadArgument;

    const auto* base = reinterpret_cast<const unsigned char*>(pSpec);
    if constexpr (isFloat) {
        for (int c = 0; c < N; ++c) std::fill_n(pHist[c], h.nLevels[c] - 1, 0);
        for (int c = 0; c < N; ++c) {
            const auto* lv = reinterpret_cast<const LooseF32*>(base + h.levels[c]);
            const int n = h.nLevels[c];
            Pxl32s* hist = pHist[c];
            for (int y = 0; y < roi.height; ++y) {
                const T* r = rowAt(pSrc, srcStep, y);
                for (int x = 0; x < roi.width; ++x) {
                    const int bin = floatBin(lv, n, r[x * N + c]);
                    if (bin >= 0) ++hist[bin];
                }
            }
        }
    } else if constexpr (sizeof(T) == 1) {
        uint32_t table[4][256];
        count8u<N, N>(pSrc, srcStep, roi, table);
        for (int c = 0; c < N; ++c)
            binsFromTable(table[c], 0, 256, reinterpret_cast<const LooseI32*>(base + h.levels[c]), h.nLevels[c], pHist[c]);
    } else {
        // One counter per 16-bit value and channel, in the work buffer.
        constexpr int64_t lowest = std::numeric_limits<T>::lowest();
        auto* table = reinterpret_cast<LooseU32*>(pBuffer);
        std::memset(pBuffer, 0, sizeof(uint32_t) * 65536 * N);
        for (int y = 0; y < roi.height; ++y) {
            const T* r = rowAt(pSrc, srcStep, y);
            for (int x = 0; x < roi.width; ++x)
                for (int c = 0; c < N; ++c) ++table[c * 65536 + (r[x * N + c] - lowest)];
        }
        for (int c = 0; c < N; ++c)
            binsFromTable(table + c * 65536, lowest, 65536, reinterpret_cast<const LooseI32*>(base + h.levels[c]), h.nLevels[c],
                          pHist[c]);
    }
    return pxlStatusOk;
}
template <class T>
PxlStatus histogramC1(const T* pSrc, int srcStep, PxliSize roi, Pxl32s* pHist, const PxliHistogramSpec* pSpec, Pxl8u* pBuffer)
{
    // The single channel's table pointer stands in for the list; a null one is refused as such.
    return histogram<T, 1>(pSrc, srcStep, roi, pHist ? &pHist : nullptr, pSpec, pBuffer);
}

// ---- Counting in a range ---------------------------------------------------------------------

template <class T, class L>
PxlStatus countInRange(const T* pSrc, int srcStep, PxliSize roi, int* pCounts, const T* lowerBound, const T* upperBound)
{
    // Pointers, step, size, bounds.
    if (!pSrc || !pCounts || !lowerBound || !upperBound) return pxlStatusNullPointer;
    if (srcStep < 1) return pxlStatusBadStep;
    if (badSize(roi)) return pxlStatusBadSize;
    for (int c = 0; c < L::proc; ++c)
        if (upperBound[c] < lowerBound[c]) return pxlStatusBadLimits;
    if constexpr (sizeof(T) == 1) {
        uint32_t table[4][256];
        count8u<L::mem, L::proc>(pSrc, srcStep, roi, table);
        for (int c = 0; c < L::proc; ++c) {
            uint32_t n = 0;
            for (int v = lowerBound[c]; v <= upperBound[c]; ++v) n += table[c][v];
            pCounts[c] = static_cast<int>(n);
        }
    } else {
        for (int c = 0; c < L::proc; ++c) {
            const T lo = lowerBound[c], hi = upperBound[c];
            uint32_t n = 0;
            for (int y = 0; y < roi.height; ++y) {
                const T* r = rowAt(pSrc, srcStep, y);
                for (int x = 0; x < roi.width; ++x) n += (lo <= r[x * L::mem + c]) & (r[x * L::mem + c] <= hi);
            }
            pCounts[c] = static_cast<int>(n);
        }
    }
    return pxlStatusOk;
}
template <class T>
PxlStatus countInRangeC1(const T* pSrc, int srcStep, PxliSize roi, int* pCounts, T lowerBound, T upperBound)
{
    return countInRange<T, C1>(pSrc, srcStep, roi, pCounts, &lowerBound, &upperBound);
}

// ---- Otsu --------------------------------------------------------------------------------------

PxlStatus otsuThreshold(const Pxl8u* pSrc, int srcStep, PxliSize roi, Pxl8u* pThreshold)
{
    // Pointers, size, step below the width.
    if (!pSrc || !pThreshold) return pxlStatusNullPointer;
    if (badSize(roi)) return pxlStatusBadSize;
    if (srcStep < roi.width) return pxlStatusBadStep;
    uint32_t table[4][256];
    count8u<1, 1>(pSrc, srcStep, roi, table);

    // Extended precision throughout, the histogram held as doubles.
    const NearestRounding nearest;
    constexpr long double eps = 1.1920928955078125e-07L, top = 0.9999998807907104L;
    double hist[256];
    long double total = 0, moment = 0;
    for (int i = 0; i < 256; ++i) {
        hist[i] = table[0][i];
        total += hist[i];
        moment += hist[i] * (i + 0.5L);
    }
    const long double inv = std::fabs(total) > eps ? 1.0L / total : 0.0L;
    const long double mean = moment * inv;
    long double w0 = 0, m0 = 0, best = 0, bestCriterion = 0;
    for (int i = 0; i < 256; ++i) {
        w0 += inv * hist[i];
        const long double w1 = 1 - w0;
        if (std::min(w0, w1) < eps || std::max(w0, w1) > top) continue;
        m0 += inv * hist[i] * (i + 0.5L);
        const long double d = w1 * m0 - (mean - m0) * w0;
        const long double criterion = d * d / (w1 * w0);
        if (criterion > bestCriterion) {
            bestCriterion = criterion;
            best = i + 0.5L;
        }
    }
    *pThreshold = static_cast<Pxl8u>(static_cast<int>(best));
    return pxlStatusOk;
}

}  // namespace pxl::stat

#include "inst/statistics/histogram.inc"
