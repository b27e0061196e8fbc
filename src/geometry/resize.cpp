// Resize: the plan's sizes and Inits, what a plan tells about a tile, and the tile runs of the
// nearest, linear, cubic and Lanczos methods.
#include "geometry/geometry.hpp"
#include "geometry/resize.hpp"
#include "geometry/lanczos_tables.hpp"

#include "frame/bind.hpp"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <numeric>

namespace pxl::geom {

namespace {

constexpr int64_t align32(int64_t n) { return (n + 31) & ~int64_t{31}; }
constexpr int32_t kLargestSide = 0x1FFFFFFF;

bool anyZero(PxliSize a, PxliSize b) { return a.width == 0 || a.height == 0 || b.width == 0 || b.height == 0; }
bool anyNegative(PxliSize a, PxliSize b) { return a.width < 0 || a.height < 0 || b.width < 0 || b.height < 0; }
bool anyAbove(PxliSize a, PxliSize b, int32_t n) { return a.width > n || a.height > n || b.width > n || b.height > n; }

// The smallest source side of a method, where it has one.
bool sourceTooSmall(int interpolation, PxliSize src, PxliSize dst)
{
    const int least = interpolation == pxlInterpLinear ? 2 : interpolation == pxlInterpCubic || interpolation == pxlInterpLanczos ? 4 : 1;
    if (src.width < least || src.height < least) return true;
    return interpolation == pxlInterpSuper && (src.width < dst.width || src.height < dst.height);
}

// Taps per destination position of the area method along an axis of reduced lengths s over d.
int64_t superTaps(int64_t s, int64_t d)
{
    const int64_t q = s / d, r = s % d;
    return q + (r == 0 ? 0 : r == 1 ? 1 : 2);
}

// Taps of an antialiasing axis: K0 at ratios up to 1, else 2 ceil(K0 ratio).
int64_t antialiasTaps(int64_t k0, int64_t src, int64_t dst)
{
    if (src <= dst) return k0;
    return 2 * ((k0 * src + dst - 1) / dst);
}

PxlStatus sizes(PxliSize src, PxliSize dst, int interpolation, bool antialiasing, bool wide, int* pSpecSize, int* pInitBufSize)
{
    const int64_t a = align32(dst.width), b = align32(dst.height), w = dst.width, h = dst.height;
    int64_t spec = 0, init = 0;
    if (antialiasing && interpolation != pxlInterpNearest && interpolation != pxlInterpSuper) {
        const int64_t k0 = interpolation == pxlInterpLinear ? 2 : interpolation == pxlInterpCubic ? 4 : 6;
        spec = 4 * (a + b) + align32(4 * w * antialiasTaps(k0, src.width, dst.width)) + align32(4 * h * antialiasTaps(k0, src.height, dst.height)) + 192;
        init = 8 * (a + b);
    } else {
        switch (interpolation) {
        case pxlInterpNearest: spec = 4 * (a + b) + 192; break;
        case pxlInterpLinear: spec = wide ? 12 * (a + b) + 128 : 8 * (a + b) + 192; break;
        case pxlInterpCubic:
            spec = 4 * (align32(4 * w + 96) + align32(4 * h + 96)) + 4 * (a + b) + 192;
            init = 4 * (a + b);
            break;
        case pxlInterpLanczos:
            spec = 4 * (align32(6 * w + 160) + align32(6 * h + 160)) + 4 * (a + b) + 192;
            init = 4 * (a + b);
            break;
        default: {  // area
            const int64_t gx = std::gcd(src.width, dst.width), gy = std::gcd(src.height, dst.height);
            const int64_t tx = dst.width / gx * superTaps(src.width / gx, dst.width / gx);
            const int64_t ty = dst.height / gy * superTaps(src.height / gy, dst.height / gy);
            spec = 4 * (align32(tx) + tx + ty + align32(ty)) + 192;
        }
        }
    }
    spec += 64;
    init += 64;
    if (spec >= 0x7FFFFFFF || init >= 0x7FFFFFFF) return pxlStatusSizeOverflow;
    *pSpecSize = static_cast<int>(spec);
    *pInitBufSize = static_cast<int>(init);
    return pxlStatusOk;
}

// The checks of the forms that take a type code: the type (64f for linear only), then sides
// above 2^29 - 1.
PxlStatus typeAndSides(PxliSize src, PxliSize dst, int interpolation, PxlDataType dataType)
{
    if (!knownDataType(dataType) && !(dataType == pxlDt64f && interpolation == pxlInterpLinear)) return pxlStatusBadDataType;
    return anyAbove(src, dst, kLargestSide) ? pxlStatusSizeOverflow : pxlStatusOk;
}

bool knownInterpolation(int i)
{
    return i == 0 || i == pxlInterpNearest || i == pxlInterpLinear || i == pxlInterpCubic || i == pxlInterpSuper || i == pxlInterpLanczos;
}

PxlStatus getSize(PxliSize src, PxliSize dst, int interpolation, int antialiasing, bool wide, bool typed, PxlDataType dataType,
                  int* pSpecSize, int* pInitBufSize)
{
    // Checks, in order: outputs; a zero side; a negative side; the method; (with a type code: the
    // type, sides above 2^29 - 1); the method's smallest source; what the method cannot do.
    if (!pSpecSize || !pInitBufSize) return pxlStatusNullPointer;
    if (anyZero(src, dst)) return pxlStatusWarnZeroSize;
    if (anyNegative(src, dst)) return pxlStatusBadSize;
    if (!knownInterpolation(interpolation)) return pxlStatusBadInterpolation;
    if (typed) {
        if (const PxlStatus s = typeAndSides(src, dst, interpolation, dataType); s != pxlStatusOk) return s;
        wide = dataType == pxlDt64f;
    }
    if (sourceTooSmall(interpolation, src, dst)) return pxlStatusBadSize;
    if (wide && (antialiasing || interpolation != pxlInterpLinear)) return pxlStatusUnsupportedMode;
    if (interpolation == 0) return pxlStatusUnsupportedMode;
    const bool noAntialiasing = antialiasing && (interpolation == pxlInterpNearest || interpolation == pxlInterpSuper);
    const PxlStatus s = sizes(src, dst, interpolation, antialiasing && !noAntialiasing, wide, pSpecSize, pInitBufSize);
    return s == pxlStatusOk && noAntialiasing ? pxlStatusWarnNoAntialiasing : s;
}

// Fills an axis's lengths and reduced lengths.
void setLengths(ResizeAxis& a, int32_t src, int32_t dst)
{
    const uint32_t g = std::gcd(static_cast<uint32_t>(src), static_cast<uint32_t>(dst));
    a = ResizeAxis{};
    a.srcLen = src;
    a.dstLen = dst;
    a.srcReduced = static_cast<int32_t>(static_cast<uint32_t>(src) / g);
    a.dstReduced = static_cast<int32_t>(static_cast<uint32_t>(dst) / g);
}

// Nearest: the source pixel truncate((i + 0.5) src / dst - 1e-10), always inside the source.
void nearestAxis(ResizeAxis& a, int32_t* index)
{
    const double r = static_cast<double>(a.srcLen) / static_cast<double>(a.dstLen);
    for (int i = 0; i < a.dstLen; ++i) index[i] = static_cast<int32_t>((i + 0.5) * r - 1e-10);
}

// Positions (i + 0.5) ratio - 0.5 as their floor and fraction; lead and trail positions are those
// whose taps, lobes on either side, reach before the first source sample or past the last.
template <class F> void positionAxis(ResizeAxis& a, int lobes, int32_t* index, F* fraction)
{
    const double ratio = ratioOf(a);
    for (int i = 0; i < a.dstLen; ++i) {
        const double pos = (i + 0.5) * ratio - 0.5, f = std::floor(pos);
        index[i] = static_cast<int32_t>(f);
        fraction[i] = static_cast<F>(pos - f);
        a.leadCount += pos < lobes - 1 ? 1 : 0;
        a.trailCount += pos >= a.srcLen - lobes ? 1 : 0;
    }
}

// The parameters of the methods with tap tables: the cubic's B and C, the Lanczos lobe count.
struct TapMethod {
    float b = 0, c = 0;
    int lobes = 2;
};

// The four cubic taps of a fraction f, weighing the source pixels at distances -1 - f, -f, 1 - f
// and 2 - f. Three common pairs have their polynomials written out.
void cubicTaps(float f, float b, float c, float* taps)
{
    const float args[4] = {-1.0f - f, -f, 1.0f - f, 2.0f - f};
    for (int k = 0; k < 4; ++k) {
        const float t = std::fabs(args[k]), t2 = t * t;
        float v = 0;
        if (b == 0.0f && c == 0.5f) {
            if (t < 1) v = (1.5f * t - 2.5f) * t2 + 1.0f;
            else if (t < 2) v = ((-0.5f * t + 2.5f) * t - 4.0f) * t + 2.0f;
        } else if (b == 1.0f && c == 0.0f) {
            if (t < 1) v = (0.5f * t2 - t) * t + 0.6666667f;
            else if (t < 2) v = (-0.16666667f * t2 + t) * t + ((1.3333334f - t) - t);
        } else if (b == 0.5f && c == 0.3f) {
            if (t < 1) v = (0.95f * t - 1.7f) * t2 + 0.8333333f;
            else if (t < 2) v = ((-0.38333333f * t + 2.0f) * t - 3.4f) * t + 1.8666667f;
        } else if (t < 1) {
            v = (1.0f - b * 0.33333334f) + (((2.0f - 1.5f * b) - c) * t + ((2.0f * b + c) - 3.0f)) * t2;
        } else if (t < 2) {
            v = (4.0f * c + 1.3333334f * b) + (-(8.0f * c + 2.0f * b) + ((5.0f * c + b) + (-0.16666667f * b - c) * t) * t) * t;
        }
        taps[k] = v;
    }
}

// The 2L Lanczos taps of a fraction f, at distances (1 - L) - f + k, looked up in the kernel's
// table with linear interpolation and divided by their sum.
void lanczosTaps(float f, int lobes, float* taps)
{
    const float* table = lobes == 2 ? kLanczos2 : kLanczos3;
    const float steps = lobes == 2 ? 200.0f : 100.0f, reach = static_cast<float>(lobes);
    float sum = 0;
    for (int k = 0; k < 2 * lobes; ++k) {
        const float a = (static_cast<float>(1 - lobes) - f) + static_cast<float>(k);
        float v = 0;
        if (a > -reach && a < reach) {
            const float u = std::fabs(a) * steps;
            const int n = static_cast<int>(u);
            v = (table[n + 1] - table[n]) * (u - static_cast<float>(n)) + table[n];
        }
        taps[k] = v;
        sum += v;
    }
    for (int k = 0; k < 2 * lobes; ++k) taps[k] /= sum;
}

void tapAxis(const ResizeAxis& a, int interpolation, const TapMethod& m, const float* fraction, float* taps)
{
    const int n = interpolation == pxlInterpCubic ? 4 : 2 * m.lobes;
    for (int i = 0; i < a.dstLen; ++i) {
        if (interpolation == pxlInterpCubic) cubicTaps(fraction[i], m.b, m.c, taps + n * i);
        else lanczosTaps(fraction[i], m.lobes, taps + n * i);
    }
}

bool badLobes(int lobes) { return lobes != 2 && lobes != 3; }
bool sourceBelowTaps(PxliSize src, int lobes) { return src.width < 2 * lobes || src.height < 2 * lobes; }

PxlStatus init(PxliSize src, PxliSize dst, int interpolation, bool wide, uint32_t identity, PxliResizeSpec* pSpec, const TapMethod& m,
               Pxl8u* pInitBuf)
{
    ResizeRecord* r = alignedRecord<ResizeRecord>(pSpec);
    std::memset(r, 0, sizeof(ResizeRecord));
    r->identity = identity;
    r->workType = wide ? pxlDt64f : pxlDt32f;
    r->interpolation = interpolation;
    const bool tapped = interpolation == pxlInterpCubic || interpolation == pxlInterpLanczos;
    const int lobes = interpolation == pxlInterpLinear ? 1 : interpolation == pxlInterpCubic ? 2 : interpolation == pxlInterpLanczos ? m.lobes : 0;
    r->lobesX = r->lobesY = lobes;
    r->borderLeft = r->borderTop = r->borderRight = r->borderBottom = lobes;
    setLengths(r->axisY, src.height, dst.height);
    setLengths(r->axisX, src.width, dst.width);
    // Tables behind the record, each a multiple of 32 entries long: rows' then columns' indices,
    // then rows' and columns' fractions (64-byte aligned) or taps.
    const uint32_t a = static_cast<uint32_t>(align32(dst.width)), b = static_cast<uint32_t>(align32(dst.height));
    const uint32_t base = sizeof(ResizeRecord), fractionBytes = wide ? 8 : 4;
    r->axisY.indexTable = base;
    r->axisX.indexTable = base + 4 * b;
    auto* bytes = reinterpret_cast<char*>(r);
    auto* rowIndex = reinterpret_cast<int32_t*>(bytes + r->axisY.indexTable);
    auto* columnIndex = reinterpret_cast<int32_t*>(bytes + r->axisX.indexTable);
    if (interpolation == pxlInterpNearest) {
        nearestAxis(r->axisY, rowIndex);
        nearestAxis(r->axisX, columnIndex);
        return pxlStatusOk;
    }
    const uint32_t rows = base + 4 * (a + b);
    if (tapped) {
        // Fractions in the Init buffer, then taps from them.
        float* rowFraction = alignedRecord<float>(pInitBuf);
        float* columnFraction = rowFraction + b;
        positionAxis(r->axisY, lobes, rowIndex, rowFraction);
        positionAxis(r->axisX, lobes, columnIndex, columnFraction);
        if (interpolation == pxlInterpLanczos) {
            if (badLobes(lobes)) return pxlStatusUnsupportedMode;
            if (sourceBelowTaps(src, lobes)) return pxlStatusBadSize;
        }
        const int n = 2 * lobes;
        r->axisY.coefTable = rows;
        r->axisX.coefTable = rows + static_cast<uint32_t>(align32(4 * n * dst.height));
        tapAxis(r->axisY, interpolation, m, rowFraction, reinterpret_cast<float*>(bytes + r->axisY.coefTable));
        tapAxis(r->axisX, interpolation, m, columnFraction, reinterpret_cast<float*>(bytes + r->axisX.coefTable));
        return pxlStatusOk;
    }
    const uint32_t columns = rows + fractionBytes * b;
    (wide ? r->axisY.coefTable64 : r->axisY.coefTable) = rows;
    (wide ? r->axisX.coefTable64 : r->axisX.coefTable) = columns;
    if (wide) {
        positionAxis(r->axisY, 1, rowIndex, reinterpret_cast<double*>(bytes + rows));
        positionAxis(r->axisX, 1, columnIndex, reinterpret_cast<double*>(bytes + columns));
    } else {
        positionAxis(r->axisY, 1, rowIndex, reinterpret_cast<float*>(bytes + rows));
        positionAxis(r->axisX, 1, columnIndex, reinterpret_cast<float*>(bytes + columns));
    }
    return pxlStatusOk;
}

// The Init of a method: the checks, in order: the record pointer (and the Init buffer of the
// methods with taps); a zero side; a negative side; (with a type code: the type, sides above
// 2^29 - 1, and for Lanczos the lobes and the source against them); the method's smallest source.
PxlStatus checkedInit(PxliSize src, PxliSize dst, int interpolation, bool wide, bool typed, PxlDataType dataType, PxliResizeSpec* pSpec,
                      const TapMethod& m = {}, Pxl8u* pInitBuf = nullptr)
{
    const bool tapped = interpolation == pxlInterpCubic || interpolation == pxlInterpLanczos;
    if (!pSpec || (tapped && !pInitBuf)) return pxlStatusNullPointer;
    if (anyZero(src, dst)) return pxlStatusWarnZeroSize;
    if (anyNegative(src, dst)) return pxlStatusBadSize;
    if (typed) {
        if (const PxlStatus s = typeAndSides(src, dst, interpolation, dataType); s != pxlStatusOk) return s;
        wide = dataType == pxlDt64f;
    }
    if (sourceTooSmall(interpolation, src, dst)) return pxlStatusBadSize;
    if (typed && interpolation == pxlInterpLanczos) {
        if (badLobes(m.lobes)) return pxlStatusUnsupportedMode;
        if (sourceBelowTaps(src, m.lobes)) return pxlStatusBadSize;
    }
    return init(src, dst, interpolation, wide, typed ? kResizeIdentityL : kResizeIdentity, pSpec, m, pInitBuf);
}

// The record of a query: its identity, and for the 64f forms double tables.
const ResizeRecord* recordOf(const PxliResizeSpec* pSpec, bool wideForm, bool L)
{
    const ResizeRecord* r = alignedRecord<const ResizeRecord>(pSpec);
    if (r->identity != (L ? kResizeIdentityL : kResizeIdentity)) return nullptr;
    if (wideForm && r->workType != pxlDt64f) return nullptr;
    return r;
}

bool offsetOutside(const ResizeRecord& r, PxliPoint o)
{
    return o.x < 0 || o.y < 0 || o.x >= r.axisX.dstLen || o.y >= r.axisY.dstLen;
}

PxliPoint sourceOrigin(const ResizeRecord& r, PxliPoint o)
{
    return {static_cast<int32_t>(std::floor(ratioOf(r.axisX) * o.x)), static_cast<int32_t>(std::floor(ratioOf(r.axisY) * o.y))};
}

// The work buffer of a tile: the tile's column and row tables, and for linear two interpolated
// rows of float (or double) samples.
int64_t bufferBytes(const ResizeRecord& r, int64_t w, int64_t h, int64_t channels)
{
    if (r.workType == pxlDt64f) return 4 * (align32(h) + align32(w)) + 8 * channels * ((2 * w + 63) & ~int64_t{31}) + 64;
    const int64_t base = align32(4 * w) + align32(4 * h);
    if (r.interpolation == pxlInterpNearest) return base + 64;
    return base + 2 * r.lobesY * align32(4 * channels * w) + 64;
}

}  // namespace

template <bool Wide> PxlStatus resizeGetSize(PxliSize srcSize, PxliSize dstSize, int interpolation, int antialiasing, int* pSpecSize, int* pInitBufSize)
{
    return getSize(srcSize, dstSize, interpolation, antialiasing, Wide, false, 0, pSpecSize, pInitBufSize);
}
PxlStatus resizeGetSizeL(PxliSize srcSize, PxliSize dstSize, PxlDataType dataType, int interpolation, int antialiasing, int* pSpecSize,
                         int* pInitBufSize)
{
    return getSize(srcSize, dstSize, interpolation, antialiasing, false, true, dataType, pSpecSize, pInitBufSize);
}

template <int Interpolation, bool Wide> PxlStatus resizeInit(PxliSize srcSize, PxliSize dstSize, PxliResizeSpec* pSpec)
{
    return checkedInit(srcSize, dstSize, Interpolation, Wide, false, 0, pSpec);
}
template <int Interpolation> PxlStatus resizeInitL(PxliSize srcSize, PxliSize dstSize, PxlDataType dataType, PxliResizeSpec* pSpec)
{
    return checkedInit(srcSize, dstSize, Interpolation, false, true, dataType, pSpec);
}
PxlStatus resizeCubicInit(PxliSize srcSize, PxliSize dstSize, Pxl32f valueB, Pxl32f valueC, PxliResizeSpec* pSpec, Pxl8u* pInitBuf)
{
    return checkedInit(srcSize, dstSize, pxlInterpCubic, false, false, 0, pSpec, TapMethod{valueB, valueC, 2}, pInitBuf);
}
PxlStatus resizeCubicInitL(PxliSize srcSize, PxliSize dstSize, PxlDataType dataType, Pxl32f valueB, Pxl32f valueC, PxliResizeSpec* pSpec,
                           Pxl8u* pInitBuf)
{
    return checkedInit(srcSize, dstSize, pxlInterpCubic, false, true, dataType, pSpec, TapMethod{valueB, valueC, 2}, pInitBuf);
}
// A lobe count too large for the record's word is as unsupported as 4.
PxlStatus resizeLanczosInit(PxliSize srcSize, PxliSize dstSize, Pxl32u numLobes, PxliResizeSpec* pSpec, Pxl8u* pInitBuf)
{
    const TapMethod m{0, 0, static_cast<int>(std::min<Pxl32u>(numLobes, 0x7FFFFFFF))};
    return checkedInit(srcSize, dstSize, pxlInterpLanczos, false, false, 0, pSpec, m, pInitBuf);
}
PxlStatus resizeLanczosInitL(PxliSize srcSize, PxliSize dstSize, PxlDataType dataType, Pxl32u numLobes, PxliResizeSpec* pSpec, Pxl8u* pInitBuf)
{
    const TapMethod m{0, 0, static_cast<int>(std::min<Pxl32u>(numLobes, 0x7FFFFFFF))};
    return checkedInit(srcSize, dstSize, pxlInterpLanczos, false, true, dataType, pSpec, m, pInitBuf);
}

template <bool Wide, bool L> PxlStatus resizeGetBorderSize(const PxliResizeSpec* pSpec, PxliBorderWidths* pBorderSize)
{
    // Checks: pointers; the record.
    if (!pSpec || !pBorderSize) return pxlStatusNullPointer;
    const ResizeRecord* r = recordOf(pSpec, Wide, L);
    if (!r) return pxlStatusBadContext;
    *pBorderSize = {r->borderLeft, r->borderTop, r->borderRight, r->borderBottom};
    return pxlStatusOk;
}

template <bool Wide, bool L> PxlStatus resizeGetBufferSize(const PxliResizeSpec* pSpec, PxliSize dstSize, int numChannels, int* pBufSize)
{
    // Checks, in order: pointers; a zero side; the record; the channels; a negative side.
    if (!pSpec || !pBufSize) return pxlStatusNullPointer;
    if (dstSize.width == 0 || dstSize.height == 0) return pxlStatusWarnZeroSize;
    const ResizeRecord* r = recordOf(pSpec, Wide, L);
    if (!r) return pxlStatusBadContext;
    if (numChannels != 1 && numChannels != 3 && numChannels != 4) return pxlStatusBadChannelCount;
    if (badSize(dstSize)) return pxlStatusBadSize;
    const int64_t bytes = bufferBytes(*r, std::min(dstSize.width, r->axisX.dstLen), std::min(dstSize.height, r->axisY.dstLen), numChannels);
    if (bytes >= 0x7FFFFFFF) return pxlStatusSizeOverflow;
    *pBufSize = static_cast<int>(bytes);
    return dstSize.width > r->axisX.dstLen || dstSize.height > r->axisY.dstLen ? pxlStatusWarnNoOperation : pxlStatusOk;
}

template <bool Wide, bool L> PxlStatus resizeGetSrcOffset(const PxliResizeSpec* pSpec, PxliPoint dstOffset, PxliPoint* pSrcOffset)
{
    // Checks, in order: pointers; the record; the offset.
    if (!pSpec || !pSrcOffset) return pxlStatusNullPointer;
    const ResizeRecord* r = recordOf(pSpec, Wide, L);
    if (!r) return pxlStatusBadContext;
    if (offsetOutside(*r, dstOffset)) return pxlStatusOutOfRange;
    *pSrcOffset = sourceOrigin(*r, dstOffset);
    return pxlStatusOk;
}

template <bool Wide, bool L>
PxlStatus resizeGetSrcRoi(const PxliResizeSpec* pSpec, PxliPoint dstOffset, PxliSize dstRoiSize, PxliPoint* pSrcOffset, PxliSize* pSrcRoiSize)
{
    // Checks, in order: pointers; the region; the record; the offset.
    if (!pSpec || !pSrcOffset || !pSrcRoiSize) return pxlStatusNullPointer;
    if (badSize(dstRoiSize)) return pxlStatusBadSize;
    const ResizeRecord* r = recordOf(pSpec, Wide, L);
    if (!r) return pxlStatusBadContext;
    if (offsetOutside(*r, dstOffset)) return pxlStatusOutOfRange;
    const PxliPoint o = sourceOrigin(*r, dstOffset);
    // The source from the tile's origin to its last position's first tap; the last tile of an
    // axis runs to the source's end, for its trailing taps.
    auto extent = [&](const ResizeAxis& a, int offset, int length, int origin) {
        const int end = std::min(offset + length, a.dstLen);
        if (end == a.dstLen) return a.srcLen - origin;
        return tableOf<int32_t>(*r, a.indexTable)[end - 1] - origin + 1;
    };
    *pSrcOffset = o;
    *pSrcRoiSize = {extent(r->axisX, dstOffset.x, dstRoiSize.width, o.x), extent(r->axisY, dstOffset.y, dstRoiSize.height, o.y)};
    return dstRoiSize.width > r->axisX.dstLen || dstRoiSize.height > r->axisY.dstLen ? pxlStatusWarnNoOperation : pxlStatusOk;
}

namespace {

// The checks that the runs share, from the pointers on: pointers; a zero side; the record (its
// identity, and double tables exactly for 64f samples); a negative side; steps that are not whole
// samples; the offset; a record of another method.
template <class T, bool L>
PxlStatus checkRun(const void* pSrc, int srcStep, const void* pDst, int dstStep, PxliPoint o, PxliSize dstSize, const PxliResizeSpec* pSpec,
                   const Pxl8u* pBuffer, int interpolation, const ResizeRecord*& record)
{
    if (!pSrc || !pDst || !pSpec || !pBuffer) return pxlStatusNullPointer;
    if (dstSize.width == 0 || dstSize.height == 0) return pxlStatusWarnZeroSize;
    const ResizeRecord* r = alignedRecord<const ResizeRecord>(pSpec);
    if (r->identity != (L ? kResizeIdentityL : kResizeIdentity) || (r->workType == pxlDt64f) != std::is_same_v<T, double>)
        return pxlStatusBadContext;
    if (badSize(dstSize)) return pxlStatusBadSize;
    if (srcStep % static_cast<int>(sizeof(T)) != 0 || dstStep % static_cast<int>(sizeof(T)) != 0) return pxlStatusBadStep;
    if (offsetOutside(*r, o)) return pxlStatusOutOfRange;
    if (r->antialiasing) return pxlStatusUnsupportedMode;
    if (r->interpolation != interpolation) return pxlStatusBadContext;
    record = r;
    return pxlStatusOk;
}

// A tile's size, cut to the destination, its source origin, and its tables relative to that
// origin (columns in samples) at the start of the aligned work buffer.
struct Tile {
    int w, h;
    PxliPoint origin;
    int32_t* x;
    int32_t* y;
    char* rest;  // the next 32-byte boundary behind the tables
};
Tile tileOf(const ResizeRecord& r, PxliPoint o, PxliSize size, int channels, Pxl8u* pBuffer)
{
    Tile t;
    t.w = std::min(size.width, r.axisX.dstLen - o.x);
    t.h = std::min(size.height, r.axisY.dstLen - o.y);
    t.origin = sourceOrigin(r, o);
    char* p = alignedRecord<char>(pBuffer);
    t.x = reinterpret_cast<int32_t*>(p);
    t.y = reinterpret_cast<int32_t*>(p + align32(4 * t.w));
    t.rest = p + align32(4 * t.w) + align32(4 * t.h);
    const int32_t* columns = tableOf<int32_t>(r, r.axisX.indexTable) + o.x;
    const int32_t* rows = tableOf<int32_t>(r, r.axisY.indexTable) + o.y;
    for (int j = 0; j < t.w; ++j) t.x[j] = (columns[j] - t.origin.x) * channels;
    for (int i = 0; i < t.h; ++i) t.y[i] = rows[i] - t.origin.y;
    return t;
}

// Strips where taps reach past the image: on each side that the tile shares with the image and
// whose memory flag is clear, or that lies inside the image (its pixels beyond the image's edge
// are then limited as in one call over the whole image).
Strips stripsOf(const ResizeRecord& r, const Tile& t, PxliPoint dstOffset, PxliBorderMode border)
{
    const ResizeAxis &ax = r.axisX, &ay = r.axisY;
    const int beyondRight = ax.dstLen - t.w - dstOffset.x, beyondBottom = ay.dstLen - t.h - dstOffset.y;
    auto clamps = [&](int flag, bool touches) { return !(border & flag) || !touches; };
    Strips s{};
    if (clamps(pxlBorderMemTop, dstOffset.y == 0) && dstOffset.y < ay.leadCount) s.top = std::min(ay.leadCount - dstOffset.y, t.h);
    if (clamps(pxlBorderMemLeft, dstOffset.x == 0) && dstOffset.x < ax.leadCount) s.left = std::min(ax.leadCount - dstOffset.x, t.w);
    if (clamps(pxlBorderMemBottom, beyondBottom == 0) && beyondBottom < ay.trailCount) s.bottom = std::min(ay.trailCount - beyondBottom, t.h);
    if (clamps(pxlBorderMemRight, beyondRight == 0) && beyondRight < ax.trailCount) s.right = std::min(ax.trailCount - beyondRight, t.w);
    s.xLo = -t.origin.x;
    s.xHi = ax.srcLen - t.origin.x - 1;
    s.yLo = -t.origin.y;
    s.yHi = ay.srcLen - t.origin.y - 1;
    return s;
}

// The border word of the methods with taps: replicate with any memory flags, or all in memory.
bool badBorder(PxliBorderMode border)
{
    return static_cast<uint32_t>(border) > 255 || (border != pxlBorderMemAll && (border & 15) != pxlBorderReplicate);
}

PxlStatus overrun(const ResizeRecord& r, PxliSize size)
{
    return size.width > r.axisX.dstLen || size.height > r.axisY.dstLen ? pxlStatusWarnNoOperation : pxlStatusOk;
}

}  // namespace

template <class T, int C, bool L>
PxlStatus resizeNearest(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, const PxliResizeSpec* pSpec,
                        Pxl8u* pBuffer)
{
    // Checks, in order: pointers; a zero side; the record; a negative side; steps; the offset; the
    // method.
    const ResizeRecord* r = nullptr;
    if (const PxlStatus s = checkRun<T, L>(pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, pSpec, pBuffer, pxlInterpNearest, r);
        s != pxlStatusOk)
        return s;
    const Tile t = tileOf(*r, dstOffset, dstSize, C, pBuffer);
    nearestTile<Bits<T>, C>(asBits(pSrc), srcStep, asBits(pDst), dstStep, t.w, t.h, t.y, t.x);
    return overrun(*r, dstSize);
}

template <class T, int C, bool L>
PxlStatus resizeLinear(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border,
                       const T* /* pBorderValue: replicated borders only */, const PxliResizeSpec* pSpec, Pxl8u* pBuffer)
{
    // Checks, in order: the border word (replicate with any memory flags, or 0xF0); pointers; a
    // zero side; the record; a negative side; steps; the offset; the method.
    if (badBorder(border)) return pxlStatusBadBorder;
    const ResizeRecord* r = nullptr;
    if (const PxlStatus s = checkRun<T, L>(pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, pSpec, pBuffer, pxlInterpLinear, r);
        s != pxlStatusOk)
        return s;
    using F = std::conditional_t<std::is_same_v<T, double>, double, float>;
    const Tile t = tileOf(*r, dstOffset, dstSize, C, pBuffer);
    const F* fx = tableOf<F>(*r, std::is_same_v<F, double> ? r->axisX.coefTable64 : r->axisX.coefTable) + dstOffset.x;
    const F* fy = tableOf<F>(*r, std::is_same_v<F, double> ? r->axisY.coefTable64 : r->axisY.coefTable) + dstOffset.y;
    const int64_t ringBytes = align32(static_cast<int64_t>(sizeof(F)) * C * t.w);
    F* const ring[2] = {reinterpret_cast<F*>(t.rest), reinterpret_cast<F*>(t.rest + ringBytes)};

    const Strips s = stripsOf(*r, t, dstOffset, border);
    if (s.top || s.bottom || s.left || s.right) linearBorder<T, C>(pSrc, srcStep, pDst, dstStep, t.w, t.h, t.y, t.x, fy, fx, s);

    const int w = t.w - s.left - s.right, h = t.h - s.top - s.bottom;
    if (w > 0 && h > 0) {
        const int32_t *y = t.y + s.top, *x = t.x + s.left;
        T* to = rowAt(pDst, dstStep, s.top) + s.left * C;
        if constexpr (std::is_integral_v<T>) {
            if (halves<C>(w, h, y, x, fy + s.top, fx + s.left)) {
                halveInterior<T, C>(pSrc, srcStep, to, dstStep, w, h, y, x);
                return overrun(*r, dstSize);
            }
        }
        linearInterior<T, C>(pSrc, srcStep, to, dstStep, w, h, y, x, fy + s.top, fx + s.left, ring);
    }
    return overrun(*r, dstSize);
}

namespace {

template <class T, int C, int N>
void tappedTile(const T* pSrc, int srcStep, T* pDst, int dstStep, const ResizeRecord& r, const Tile& t, PxliPoint dstOffset, PxliBorderMode border)
{
    const float* cx = tableOf<float>(r, r.axisX.coefTable) + N * dstOffset.x;
    const float* cy = tableOf<float>(r, r.axisY.coefTable) + N * dstOffset.y;
    const Strips s = stripsOf(r, t, dstOffset, border);
    if (s.top || s.bottom || s.left || s.right) tapsBorder<T, C, N>(pSrc, srcStep, pDst, dstStep, t.w, t.h, t.y, t.x, cy, cx, s);
    const int w = t.w - s.left - s.right, h = t.h - s.top - s.bottom;
    if (w <= 0 || h <= 0) return;
    float* ring[N];
    const int64_t ringBytes = align32(static_cast<int64_t>(sizeof(float)) * C * t.w);
    for (int k = 0; k < N; ++k) ring[k] = reinterpret_cast<float*>(t.rest + k * ringBytes);
    tapsInterior<T, C, N>(pSrc, srcStep, rowAt(pDst, dstStep, s.top) + s.left * C, dstStep, w, h, t.y + s.top, t.x + s.left, cy + N * s.top,
                          cx + N * s.left, ring);
}

}  // namespace

template <class T, int C, bool L, int Interpolation>
PxlStatus resizeTapped(const T* pSrc, int srcStep, T* pDst, int dstStep, PxliPoint dstOffset, PxliSize dstSize, PxliBorderMode border,
                       const T* /* pBorderValue: replicated borders only */, const PxliResizeSpec* pSpec, Pxl8u* pBuffer)
{
    // Checks, in order: the border word (replicate with any memory flags, or 0xF0); pointers; a
    // zero side; the record; a negative side; steps; the offset; the method; (Lanczos) the lobes.
    if (badBorder(border)) return pxlStatusBadBorder;
    const ResizeRecord* r = nullptr;
    if (const PxlStatus s = checkRun<T, L>(pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, pSpec, pBuffer, Interpolation, r); s != pxlStatusOk)
        return s;
    if (r->lobesX != 2 && r->lobesX != 3) return pxlStatusUnsupportedMode;
    const Tile t = tileOf(*r, dstOffset, dstSize, C, pBuffer);
    if (r->lobesX == 2) tappedTile<T, C, 4>(pSrc, srcStep, pDst, dstStep, *r, t, dstOffset, border);
    else tappedTile<T, C, 6>(pSrc, srcStep, pDst, dstStep, *r, t, dstOffset, border);
    return overrun(*r, dstSize);
}

}  // namespace pxl::geom

#include "inst/geometry/resize.inc"
